#pragma once

#include "Mirel/GUI/Controls/CDrawnControl.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace Mirel::GUI
{

/// Lines of text of which one is selected, with a scroll bar where they need it. GUI thread only.
class CListBox : public CDrawnControl
{
public:
    static constexpr int none = -1;

    struct SItem
    {
        std::string text; ///< UTF-8
        bool isFolder = false;
    };

    CListBox(CLightWidget* parent_, const CPopupLook& look_);

    /// None is selected afterwards.
    void SetItems(std::vector<SItem> newItems);
    int GetCount() const { return static_cast<int>(items.size()); }
    const SItem& GetItem(int index) const { return items[static_cast<std::size_t>(index)]; }

    /// Scrolls to it. Does not call the handler.
    void Select(int index);
    int GetSelected() const { return selected; }

    /// The user selected another item.
    void SetSelectHandler(std::function<void()> handler) { selectHandler = std::move(handler); }

    /// The user double-clicked the selected item, or pressed return.
    void SetActivateHandler(std::function<void()> handler) { activateHandler = std::move(handler); }

    int GetRowHeight() const;
    int GetFirstRow() const { return firstRow; }

protected:
    void Paint(Graphics::CDrawSurface& surface, CSize size) override;
    bool OnLeftDown(const COSXMouseEvent& event) override;
    bool OnLeftUp(const COSXMouseEvent& event) override;
    bool OnLeftDoubleClick(const COSXMouseEvent& event) override;
    bool OnMouseDrag(const COSXMouseEvent& event) override;
    bool OnMouseWheel(const COSXMouseWheelEvent& event) override;
    void OnCaptureLost() override { isDraggingThumb = false; }
    bool AcceptsKey(const COSXKeyEvent& event) override;
    bool OnKeyDown(const COSXKeyEvent& event) override;

private:
    int GetVisibleRows() const;
    int FindRow(CPoint place) const;
    bool HasScrollBar() const { return GetCount() > GetVisibleRows(); }
    CRect GetThumb() const;
    void ScrollTo(int row);
    void SelectByUser(int index);
    void Activate() const;
    int FindByLetter(const std::string& letter) const;

    std::vector<SItem> items;
    int selected = none;
    int firstRow = 0;
    bool isDraggingThumb = false;
    int dragStart = 0;
    int dragFirstRow = 0;
    std::function<void()> selectHandler;
    std::function<void()> activateHandler;
};

} // namespace Mirel::GUI
