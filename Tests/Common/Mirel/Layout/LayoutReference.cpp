// The layout as a single pass over plain numbers, children first, then places: no dirty marks, no events.

#include "Common/Mirel/Layout/LayoutTree.h"

#include <algorithm>

using Mirel::Layout::EAlign;
using Mirel::Layout::ELayoutType;

namespace Tests
{

namespace
{

class CReference
{
public:
    explicit CReference(const CNode& root)
    {
        Measure(root);
        Arrange(root, {0, 0});
    }

    std::unordered_map<const CNode*, CPlace> places;

private:
    struct CTableState
    {
        std::vector<int> columns;
        std::vector<int> rows;
    };

    TPair<int>& SizeOf(const CNode& node) { return places[&node].size; }

    TPair<int> CountedSize(const CNode& node, bool recurse)
    {
        TPair<int> size = SizeOf(node);
        for (std::size_t a = 0; a < 2; ++a)
        {
            size[a] = recurse && node.ratio[a] >= 0.0F ? 0 : size[a];
        }
        return size;
    }

    void Measure(const CNode& node)
    {
        SizeOf(node) = node.size;
        for (const auto& child : node.children)
        {
            if (child->displayed)
            {
                Measure(*child);
            }
        }
        if (node.kind == CNode::EKind::Box)
        {
            return;
        }
        FindNatural(node, true);
        for (std::size_t a = 0; a < 2; ++a)
        {
            SizeOf(node)[a] = node.autoSize[a] ? natural[&node][a] : node.size[a];
        }
    }

    void FindNatural(const CNode& node, bool recurse)
    {
        if (node.kind == CNode::EKind::Table)
        {
            FindTableNatural(node, recurse);
        }
        else if (node.type == ELayoutType::LayerStack)
        {
            TPair<int> largest = {};
            for (const auto& child : node.children)
            {
                for (std::size_t a = 0; a < 2 && child->displayed; ++a)
                {
                    largest[a] = std::max(largest[a], Across(node, *child, a, recurse));
                }
            }
            natural[&node] = largest;
        }
        else
        {
            FindFlowNatural(node, recurse);
        }
    }

    int Across(const CNode& node, const CNode& child, std::size_t a, bool recurse)
    {
        const int extent = CountedSize(child, recurse)[a];
        return child.hasPosition[a] ? child.position[a] + node.margin[a] + extent
                                    : extent + 2 * node.margin[a];
    }

    void FindFlowNatural(const CNode& node, bool recurse)
    {
        const std::size_t main = node.type == ELayoutType::Row ? 0 : 1;
        int length = node.margin[main];
        int thickest = 0;
        int count = 0;
        for (const auto& child : node.children)
        {
            if (!child->displayed)
            {
                continue;
            }
            ++count;
            const int extent = CountedSize(*child, recurse)[main];
            if (child->hasPosition[main])
            {
                length = child->position[main] + extent + node.spacing[0];
            }
            else
            {
                length += extent + node.spacing[0];
            }
            thickest = std::max(thickest, Across(node, *child, 1 - main, recurse));
        }
        if (count != 0)
        {
            length -= node.spacing[0];
        }
        natural[&node][main] = length + node.margin[main];
        natural[&node][1 - main] = thickest;
    }

    void FindTableNatural(const CNode& node, bool recurse)
    {
        CTableState& table = tables[&node];
        std::size_t columnCount = 0;
        for (const CNode::CRow& row : node.rows)
        {
            columnCount = std::max(columnCount, row.cells);
        }
        table.columns.assign(columnCount, 0);
        table.rows.resize(node.rows.size());
        auto child = node.children.begin();
        TPair<int> sum = {(static_cast<int>(columnCount) - 1) * node.spacing[0] + 2 * node.margin[0],
                          (static_cast<int>(node.rows.size()) - 1) * node.spacing[1] + 2 * node.margin[1]};
        for (std::size_t r = 0; r < node.rows.size(); ++r)
        {
            const CNode::CRow& row = node.rows[r];
            const bool shared = row.ratio >= 0.0F && row.fixed < 0;
            int highest = 0;
            std::size_t column = 0;
            for (std::size_t i = 0; i < row.cells; ++i, ++child)
            {
                if ((*child)->displayed)
                {
                    const TPair<int> size = CountedSize(**child, recurse);
                    table.columns[column] = std::max(table.columns[column], size[0]);
                    ++column;
                    highest = std::max(highest, size[1]);
                }
            }
            if (row.fixed >= 0)
            {
                table.rows[r] = row.fixed;
            }
            else if (!shared)
            {
                table.rows[r] = highest;
            }
            else if (recurse)
            {
                table.rows[r] = 0;
            }
            sum[1] += table.rows[r];
        }
        for (const int width : table.columns)
        {
            sum[0] += width;
        }
        natural[&node] = sum;
    }

    void Arrange(const CNode& node, TPair<int> point)
    {
        places[&node].position = point;
        if (!node.displayed)
        {
            return; // Nothing in it was measured.
        }
        if (node.kind == CNode::EKind::Content)
        {
            point = {0, 0};
        }
        if (node.kind == CNode::EKind::Table)
        {
            ArrangeTable(node, point);
        }
        else if (node.kind != CNode::EKind::Box)
        {
            ArrangeGroup(node, point);
        }
    }

    static int Truncated(int available, float ratio)
    {
        return static_cast<int>(static_cast<float>(available) * ratio);
    }

    bool Ratios(const CNode& child, int width, int height)
    {
        const TPair<int> before = SizeOf(child);
        const TPair<int> available = {width, height};
        for (std::size_t a = 0; a < 2; ++a)
        {
            if (child.ratio[a] >= 0.0F)
            {
                SizeOf(child)[a] = Truncated(available[a], child.ratio[a]);
            }
        }
        return SizeOf(child) != before;
    }

    void ArrangeGroup(const CNode& node, const TPair<int>& point)
    {
        const TPair<int> size = SizeOf(node);
        float flexTotal = 0.0F;
        bool changed = false;
        for (const auto& child : node.children)
        {
            if (child->displayed)
            {
                flexTotal += child->flex;
                changed |= Ratios(*child, size[0] - 2 * node.margin[0], size[1] - 2 * node.margin[1]);
            }
        }
        if (changed)
        {
            FindNatural(node, false);
        }
        if (node.type == ELayoutType::LayerStack)
        {
            for (const auto& child : node.children)
            {
                Arrange(*child, {PlaceAcross(node, *child, 0, point), PlaceAcross(node, *child, 1, point)});
            }
            return;
        }
        const std::size_t main = node.type == ELayoutType::Row ? 0 : 1;
        if ((flexTotal < 0.0F || flexTotal > 0.0F) && natural[&node][main] != size[main])
        {
            Share(node, main, flexTotal);
            FindNatural(node, false);
        }
        int cursor = point[main] + node.margin[main] +
                     Aligned(node.internalAlign[main], size[main] - natural[&node][main]);
        for (const auto& child : node.children)
        {
            TPair<int> place = {};
            if (child->displayed)
            {
                place[main] = child->hasPosition[main] ? point[main] + child->position[main] : cursor;
                place[1 - main] = PlaceAcross(node, *child, 1 - main, point);
                cursor = place[main] + SizeOf(*child)[main] + node.spacing[0];
            }
            Arrange(*child, place);
        }
    }

    void Share(const CNode& node, std::size_t main, float flexTotal)
    {
        const float unit = static_cast<float>(SizeOf(node)[main] - natural[&node][main]) / flexTotal;
        float carry = 0.0F;
        for (const auto& child : node.children)
        {
            if (child->displayed && (child->flex < 0.0F || child->flex > 0.0F))
            {
                const float s = unit * child->flex + carry;
                const int share = static_cast<int>(static_cast<double>(s) + (s >= 0.0F ? 0.5 : -0.5));
                carry = s - static_cast<float>(share);
                SizeOf(*child)[main] += share;
            }
        }
    }

    static int Aligned(EAlign align, int rest)
    {
        return align == EAlign::Center ? rest / 2 : align == EAlign::End ? rest : 0;
    }

    int PlaceAcross(const CNode& node, const CNode& child, std::size_t a, const TPair<int>& point)
    {
        if (child.hasPosition[a])
        {
            return point[a] + child.position[a];
        }
        const int rest = SizeOf(node)[a] - SizeOf(child)[a];
        switch (child.align[a])
        {
        case EAlign::Center:
            return point[a] + rest / 2;
        case EAlign::End:
            return point[a] + rest - node.margin[a];
        case EAlign::Begin:
            break;
        }
        return point[a] + node.margin[a];
    }

    void ArrangeTable(const CNode& node, const TPair<int>& point)
    {
        const TPair<int> size = SizeOf(node);
        CTableState& table = tables[&node];
        bool changed = false;
        auto child = node.children.begin();
        for (std::size_t r = 0; r < node.rows.size(); ++r)
        {
            if (node.rows[r].ratio >= 0.0F && node.rows[r].fixed < 0)
            {
                table.rows[r] = Truncated(size[1] - 2 * node.margin[1], node.rows[r].ratio);
                changed = true;
            }
            for (std::size_t i = 0; i < node.rows[r].cells; ++i, ++child)
            {
                changed |=
                    (*child)->displayed && Ratios(**child, size[0] - 2 * node.margin[0], table.rows[r]);
            }
        }
        if (changed)
        {
            FindNatural(node, false);
        }
        PlaceTable(node, point);
    }

    void PlaceTable(const CNode& node, const TPair<int>& point)
    {
        const CTableState& table = tables[&node];
        TPair<int> begin = {};
        for (std::size_t a = 0; a < 2; ++a)
        {
            begin[a] = point[a] + node.margin[a] +
                       Aligned(node.internalAlign[a], SizeOf(node)[a] - natural[&node][a]);
        }
        auto child = node.children.begin();
        int y = begin[1];
        for (std::size_t r = 0; r < node.rows.size(); ++r)
        {
            int x = begin[0];
            std::size_t column = 0;
            for (std::size_t i = 0; i < node.rows[r].cells; ++i, ++child)
            {
                TPair<int> place = {};
                if ((*child)->displayed)
                {
                    const TPair<int> cell = SizeOf(**child);
                    place = {x + Aligned((*child)->align[0], table.columns[column] - cell[0]),
                             y + Aligned((*child)->align[1], table.rows[r] - cell[1])};
                    x += table.columns[column] + node.spacing[0];
                    ++column;
                }
                Arrange(**child, place);
            }
            y += table.rows[r] + node.spacing[1];
        }
    }

    std::unordered_map<const CNode*, TPair<int>> natural;
    std::unordered_map<const CNode*, CTableState> tables;
};

} // namespace

std::unordered_map<const CNode*, CPlace> ReferenceLayout(const CNode& root)
{
    return CReference(root).places;
}

} // namespace Tests
