#pragma once

#include "Mirel/Layout/CGroupLayoutCell.h"
#include "Mirel/Layout/ILayoutContent.h"

namespace Mirel::Layout
{

/// A group that is the area of a widget: it takes its size from the widget until it is told one, moves, sizes
/// and shows the widget, and places its cells in the widget's own coordinates. When the widget's own size has
/// changed, whoever changed it calls Update. GUI thread only.
class CContentLayoutCell : public CGroupLayoutCell
{
public:
    /// The content is not owned and must outlive the cell's last layout. Neither axis is automatic at first.
    explicit CContentLayoutCell(ILayoutContent& content_, ELayoutType layoutType_ = ELayoutType::Row,
                                std::int32_t spacing_ = 0, std::int32_t hMargin_ = 0,
                                std::int32_t vMargin_ = 0);

    /// From now on the size of the widget no longer counts, even if the value is what it was.
    void SetFixedSize(const Core::CSize& newFixedSize) override;
    void UpdateSize() override;
    void Arrange(const Core::CPoint& point) override;

    /// Whether the widget is to be seen. One that is not keeps its room; see SetDisplayed.
    virtual void SetShown(bool newShown);
    bool IsShown() const { return shown; }

private:
    void TakeContentSize();
    void ShowContent() { content.Show(IsVisible() && shown); }

    ILayoutContent& content;
    bool shown = true;
    bool hasExplicitSize = false;
    bool hasGivenSize = false;
    unsigned arrangements = 0;
    Core::CSize givenToContent; ///< What the widget's size is as long as only the layout changes it.
};

} // namespace Mirel::Layout
