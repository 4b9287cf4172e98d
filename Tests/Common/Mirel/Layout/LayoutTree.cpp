#include "Common/Mirel/Layout/LayoutTree.h"

#include "Common/Mirel/Layout/LayoutRig.h"

#include <algorithm>
#include <utility>

using namespace Mirel::Layout;

namespace Tests
{

namespace
{

int Pick(std::mt19937& random, int low, int high)
{
    return std::uniform_int_distribution<int>(low, high)(random);
}

template <class T, std::size_t N>
T PickOf(std::mt19937& random, const T (&values)[N])
{
    return values[static_cast<std::size_t>(Pick(random, 0, static_cast<int>(N) - 1))];
}

TPair<int> RandomSize(std::mt19937& random)
{
    return {Pick(random, -3, 60), Pick(random, -3, 60)};
}

EAlign RandomAlign(std::mt19937& random)
{
    return PickOf(random, {EAlign::Begin, EAlign::Center, EAlign::End});
}

float RandomRatio(std::mt19937& random)
{
    return PickOf(random, {-1.0F, -1.0F, -1.0F, 0.0F, 0.25F, 0.5F, 0.7F, 1.0F, 1.3F});
}

float RandomFlex(std::mt19937& random)
{
    return PickOf(random, {0.0F, 0.0F, 1.0F, 2.0F, 0.3F, -1.0F});
}

ELayoutType RandomType(std::mt19937& random)
{
    return PickOf(random, {ELayoutType::Row, ELayoutType::Column, ELayoutType::LayerStack});
}

std::unique_ptr<CNode> RandomNode(int depth, std::mt19937& random)
{
    auto node = std::make_unique<CNode>();
    node->depth = depth;
    node->kind = depth == 6 ? CNode::EKind::Box
                            : PickOf(random, {CNode::EKind::Box, CNode::EKind::Group, CNode::EKind::Group,
                                              CNode::EKind::Content, CNode::EKind::Table});
    node->type = RandomType(random);
    node->size = RandomSize(random);
    const bool content = node->kind == CNode::EKind::Content;
    node->autoSize = {!content && Pick(random, 0, 2) > 0, !content && Pick(random, 0, 2) > 0};
    node->margin = {Pick(random, -2, 9), Pick(random, -2, 9)};
    node->spacing = {Pick(random, -2, 9), Pick(random, -2, 9)};
    node->internalAlign = {RandomAlign(random), RandomAlign(random)};
    node->align = {RandomAlign(random), RandomAlign(random)};
    node->ratio = {RandomRatio(random), RandomRatio(random)};
    node->flex = RandomFlex(random);
    node->hasPosition = {Pick(random, 0, 9) == 0, Pick(random, 0, 9) == 0};
    node->position = {Pick(random, -9, 90), Pick(random, -9, 90)};
    node->displayed = Pick(random, 0, 9) > 0;
    if (node->kind == CNode::EKind::Table)
    {
        for (int row = Pick(random, 0, 3); row > 0; --row)
        {
            node->rows.push_back(
                {RandomRatio(random), Pick(random, 0, 3) == 0 ? Pick(random, 0, 40) : -1, 0});
        }
    }
    return node;
}

bool CanHoldMore(const CNode& node)
{
    return node.kind != CNode::EKind::Box && (node.kind != CNode::EKind::Table || !node.rows.empty());
}

/// Puts the child into the parent's list; the child that it stands behind, or null.
const CNode* Insert(CNode& parent, std::unique_ptr<CNode> child, bool live, std::mt19937& random)
{
    std::size_t index = static_cast<std::size_t>(Pick(random, 0, static_cast<int>(parent.children.size())));
    if (parent.kind == CNode::EKind::Table)
    {
        auto row = static_cast<std::size_t>(Pick(random, 0, static_cast<int>(parent.rows.size()) - 1));
        // A live table finds a row by a cell in it.
        while (live && row > 0 && parent.rows[row].cells == 0)
        {
            --row;
        }
        ++parent.rows[row].cells;
        index = parent.rows[row].cells - 1;
        for (std::size_t before = 0; before < row; ++before)
        {
            index += parent.rows[before].cells;
        }
    }
    parent.children.insert(parent.children.begin() + static_cast<std::ptrdiff_t>(index), std::move(child));
    return index == 0 ? nullptr : parent.children[index - 1].get();
}

CNode& PickNode(CNode& root, std::mt19937& random)
{
    const std::vector<CNode*> nodes = NodesOf(root);
    return *nodes[static_cast<std::size_t>(Pick(random, 0, static_cast<int>(nodes.size()) - 1))];
}

CLayoutOptions OptionsOf(const CNode& node)
{
    CLayoutOptions options;
    for (const EAxis axis : {EAxis::Horizontal, EAxis::Vertical})
    {
        const auto a = static_cast<std::size_t>(axis);
        options.SetAlign(axis, node.align[a]);
        options.SetRatio(axis, node.ratio[a]);
        if (node.hasPosition[a])
        {
            options.SetPosition(axis, node.position[a]);
        }
    }
    options.SetFlex(node.flex);
    return options;
}

} // namespace

std::vector<CNode*> NodesOf(CNode& root)
{
    std::vector<CNode*> nodes = {&root};
    for (std::size_t i = 0; i < nodes.size(); ++i)
    {
        for (const auto& child : nodes[i]->children)
        {
            nodes.push_back(child.get());
        }
    }
    return nodes;
}

std::unique_ptr<CNode> RandomTree(std::size_t cells, std::mt19937& random)
{
    auto root = RandomNode(1, random);
    root->kind = CNode::EKind::Group;
    root->rows.clear();
    root->displayed = true;
    for (std::size_t count = 1; count < cells;)
    {
        CNode& parent = PickNode(*root, random);
        if (CanHoldMore(parent))
        {
            Insert(parent, RandomNode(parent.depth + 1, random), false, random);
            ++count;
        }
    }
    return root;
}

class CLiveTree::CWidget : public ILayoutContent
{
public:
    explicit CWidget(const TPair<int>& size_) : size({size_[0], size_[1]}) {}

    CSize GetSize() const override { return size; }
    void SetSize(const CSize& newSize) override { size = newSize; }
    void Move(const CPoint& /*position*/) override {}
    void Show(bool /*shown*/) override {}

private:
    CSize size;
};

CLiveTree::CLiveTree(const CNode& root) : rootCell(Make(root))
{
    rootCell->SetAutoUpdate(true);
}

CLiveTree::~CLiveTree() = default;

std::unique_ptr<CLayoutCell> CLiveTree::Make(const CNode& node)
{
    auto cell = node.kind == CNode::EKind::Box
                    ? std::unique_ptr<CLayoutCell>(std::make_unique<CBox>(CSize{node.size[0], node.size[1]}))
                    : MakeGroup(node);
    cell->SetDisplayed(node.displayed);
    cells[&node] = cell.get();
    return cell;
}

std::unique_ptr<CLayoutCell> CLiveTree::MakeGroup(const CNode& node)
{
    std::unique_ptr<CBaseGroupLayoutCell> group;
    auto child = node.children.begin();
    if (node.kind == CNode::EKind::Table)
    {
        auto table = std::make_unique<CTableLayoutCell>(node.spacing[0], node.spacing[1], node.margin[0],
                                                        node.margin[1]);
        for (const CNode::CRow& row : node.rows)
        {
            table->AddRow(row.ratio, row.fixed);
            for (std::size_t i = 0; i < row.cells; ++i)
            {
                AddTo(*table, **child++);
            }
        }
        group = std::move(table);
    }
    else if (node.kind == CNode::EKind::Content)
    {
        CWidget& widget = widgets.emplace_back(node.size);
        widgetOf[&node] = &widget;
        group = std::make_unique<CContentLayoutCell>(widget, node.type, node.spacing[0], node.margin[0],
                                                     node.margin[1]);
    }
    else
    {
        group =
            std::make_unique<CGroupLayoutCell>(node.type, node.spacing[0], node.margin[0], node.margin[1]);
        group->SetFixedSize({node.size[0], node.size[1]});
    }
    if (node.kind == CNode::EKind::Table)
    {
        group->SetFixedSize({node.size[0], node.size[1]});
    }
    for (; child != node.children.end(); ++child)
    {
        AddTo(*group, **child);
    }
    group->SetAutoWidth(node.autoSize[0]);
    group->SetAutoHeight(node.autoSize[1]);
    group->SetInternalAlign(node.internalAlign[0], node.internalAlign[1]);
    return group;
}

void CLiveTree::AddTo(ILayoutGroup& group, const CNode& node)
{
    options[&node] = group.AddCell(Make(node).release(), OptionsOf(node), true);
}

void CLiveTree::Forget(CNode& node)
{
    for (const CNode* gone : NodesOf(node))
    {
        cells.erase(gone);
        options.erase(gone);
        widgetOf.erase(gone);
    }
}

void CLiveTree::ChangeAtRandom(CNode& root, std::mt19937& random)
{
    CNode& node = PickNode(root, random);
    const bool isRoot = &node == &root;
    switch (Pick(random, 0, 7))
    {
    case 0:
        if (CanHoldMore(node))
        {
            AddChild(node, random);
        }
        break;
    case 1:
        if (!node.children.empty())
        {
            RemoveChild(node, random);
        }
        break;
    case 2:
        if (!isRoot)
        {
            node.displayed = !node.displayed;
            GetCell(node).SetDisplayed(node.displayed);
        }
        break;
    case 3:
    case 4:
        ChangeSize(node, random);
        break;
    case 5:
        if (node.kind != CNode::EKind::Box)
        {
            ChangeGroup(node, random);
        }
        break;
    default:
        if (!isRoot)
        {
            ChangeOptions(node, random);
        }
        break;
    }
}

void CLiveTree::ChangeOptions(CNode& node, std::mt19937& random)
{
    CLayoutOptions& live = *options.at(&node);
    const auto a = static_cast<std::size_t>(Pick(random, 0, 1));
    const EAxis axis = a == 0 ? EAxis::Horizontal : EAxis::Vertical;
    switch (Pick(random, 0, 9))
    {
    case 0:
        node.position[a] = Pick(random, -9, 90);
        node.hasPosition[a] = true;
        live.SetPosition(axis, node.position[a]);
        break;
    case 1:
    case 2:
    case 3:
        node.ratio[a] = RandomRatio(random);
        live.SetRatio(axis, node.ratio[a]);
        break;
    case 4:
    case 5:
    case 6:
        node.flex = RandomFlex(random);
        live.SetFlex(node.flex);
        break;
    default:
        node.align[a] = RandomAlign(random);
        live.SetAlign(axis, node.align[a]);
        break;
    }
}

void CLiveTree::ChangeGroup(CNode& node, std::mt19937& random)
{
    auto& group = dynamic_cast<CBaseGroupLayoutCell&>(GetCell(node));
    auto* flow = dynamic_cast<CGroupLayoutCell*>(&group);
    switch (Pick(random, 0, 3))
    {
    case 0:
        node.margin = {Pick(random, -2, 9), Pick(random, -2, 9)};
        group.SetHMargin(node.margin[0]);
        group.SetVMargin(node.margin[1]);
        break;
    case 1:
        node.internalAlign = {RandomAlign(random), RandomAlign(random)};
        group.SetInternalAlign(node.internalAlign[0], node.internalAlign[1]);
        break;
    case 2:
        node.autoSize = {Pick(random, 0, 1) == 0, Pick(random, 0, 1) == 0};
        group.SetAutoWidth(node.autoSize[0]);
        group.SetAutoHeight(node.autoSize[1]);
        break;
    default:
        node.spacing[0] = Pick(random, -2, 9);
        if (flow == nullptr)
        {
            dynamic_cast<CTableLayoutCell&>(group).SetHSpacing(node.spacing[0]);
            break;
        }
        node.type = RandomType(random);
        flow->SetSpacing(node.spacing[0]);
        flow->SetLayoutType(node.type);
        break;
    }
}

void CLiveTree::ChangeSize(CNode& node, std::mt19937& random)
{
    node.size = RandomSize(random);
    if (node.kind == CNode::EKind::Content)
    {
        node.size[0] += 100000 * ++widgetSizes; // Never what the layout gives it.
    }
    const CSize size = {node.size[0], node.size[1]};
    if (node.kind == CNode::EKind::Box)
    {
        dynamic_cast<CBox&>(GetCell(node)).SetContent(size);
    }
    else if (node.kind == CNode::EKind::Content)
    {
        widgetOf.at(&node)->SetSize(size);
        GetCell(node).Update();
    }
    else
    {
        dynamic_cast<CBaseGroupLayoutCell&>(GetCell(node)).SetFixedSize(size);
    }
}

void CLiveTree::AddChild(CNode& parent, std::mt19937& random)
{
    auto made = RandomNode(parent.depth + 1, random);
    CNode& child = *made;
    const CNode* before = Insert(parent, std::move(made), true, random);
    auto& group = dynamic_cast<CBaseGroupLayoutCell&>(GetCell(parent));
    group.SetInsertionPoint(before == nullptr ? nullptr : &GetCell(*before));
    AddTo(group, child);
    GetCell(child).SetAutoUpdate(group.GetAutoUpdate());
}

void CLiveTree::RemoveChild(CNode& parent, std::mt19937& random)
{
    const auto index =
        static_cast<std::size_t>(Pick(random, 0, static_cast<int>(parent.children.size()) - 1));
    CNode& child = *parent.children[index];
    dynamic_cast<CBaseGroupLayoutCell&>(GetCell(parent)).RemoveCell(&GetCell(child), true);
    Forget(child);
    std::size_t end = 0;
    for (CNode::CRow& row : parent.rows)
    {
        end += row.cells;
        if (index < end)
        {
            --row.cells;
            break;
        }
    }
    parent.children.erase(parent.children.begin() + static_cast<std::ptrdiff_t>(index));
}

} // namespace Tests
