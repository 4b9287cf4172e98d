#pragma once

#include "Mirel/Layout/CContentLayoutCell.h"
#include "Mirel/Layout/CTableLayoutCell.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <random>
#include <unordered_map>
#include <vector>

namespace Tests
{

/// Something for each axis: horizontal, vertical.
template <class T>
using TPair = std::array<T, 2>;

/// A tree of cells on paper: from it live trees are built, and a second, slow computation takes the
/// positions.
struct CNode
{
    enum class EKind
    {
        Box,
        Group,
        Content,
        Table
    };

    struct CRow
    {
        float ratio = -1.0F;
        int fixed = -1;
        std::size_t cells = 0;
    };

    EKind kind = EKind::Box;
    Mirel::Layout::ELayoutType type = Mirel::Layout::ELayoutType::Row;
    TPair<int> size = {}; ///< Of a box or a widget; the fixed one of a group.
    TPair<bool> autoSize = {true, true};
    TPair<int> margin = {};
    TPair<int> spacing = {}; ///< A group has the first alone.
    TPair<Mirel::Layout::EAlign> internalAlign = {};

    TPair<Mirel::Layout::EAlign> align = {Mirel::Layout::EAlign::Center, Mirel::Layout::EAlign::Center};
    TPair<bool> hasPosition = {};
    TPair<int> position = {};
    TPair<float> ratio = {-1.0F, -1.0F};
    float flex = 0.0F;
    bool displayed = true;

    int depth = 1;
    std::vector<std::unique_ptr<CNode>> children; ///< In a table all rows, one after the other.
    std::vector<CRow> rows;
};

/// All nodes of the tree, the root first.
std::vector<CNode*> NodesOf(CNode& root);

/// A tree of random nodes, at most six deep.
std::unique_ptr<CNode> RandomTree(std::size_t cells, std::mt19937& random);

/// The cells of a tree on paper.
class CLiveTree
{
public:
    explicit CLiveTree(const CNode& root);
    CLiveTree(const CLiveTree&) = delete;
    CLiveTree& operator=(const CLiveTree&) = delete;
    ~CLiveTree();

    Mirel::Layout::CLayoutCell& GetRoot() const { return *rootCell; }
    Mirel::Layout::CLayoutCell& GetCell(const CNode& node) const { return *cells.at(&node); }

    /// Changes the tree on paper and the live one in the same way.
    void ChangeAtRandom(CNode& root, std::mt19937& random);

private:
    class CWidget;

    std::unique_ptr<Mirel::Layout::CLayoutCell> Make(const CNode& node);
    std::unique_ptr<Mirel::Layout::CLayoutCell> MakeGroup(const CNode& node);
    void AddTo(Mirel::Layout::ILayoutGroup& group, const CNode& node);
    void Forget(CNode& node);
    void ChangeOptions(CNode& node, std::mt19937& random);
    void ChangeGroup(CNode& node, std::mt19937& random);
    void ChangeSize(CNode& node, std::mt19937& random);
    void AddChild(CNode& parent, std::mt19937& random);
    void RemoveChild(CNode& parent, std::mt19937& random);

    int widgetSizes = 0;
    std::list<CWidget> widgets;
    std::unordered_map<const CNode*, Mirel::Layout::CLayoutCell*> cells;
    std::unordered_map<const CNode*, Mirel::Layout::CLayoutOptions*> options;
    std::unordered_map<const CNode*, CWidget*> widgetOf;
    std::unique_ptr<Mirel::Layout::CLayoutCell> rootCell;
};

/// Where a node stands.
struct CPlace
{
    TPair<int> size = {};
    TPair<int> position = {};
};

/// Lays the tree out once, from nothing, on plain numbers; the root stands at (0, 0).
std::unordered_map<const CNode*, CPlace> ReferenceLayout(const CNode& root);

} // namespace Tests
