#include "Mirel/Layout/CContentLayoutCell.h"

namespace Mirel::Layout
{

CContentLayoutCell::CContentLayoutCell(ILayoutContent& content_, ELayoutType layoutType_,
                                       std::int32_t spacing_, std::int32_t hMargin_, std::int32_t vMargin_)
    : CGroupLayoutCell(layoutType_, spacing_, hMargin_, vMargin_),
      content(content_)
{
    SetAutoSize(false);
}

void CContentLayoutCell::SetFixedSize(const Core::CSize& newFixedSize)
{
    hasExplicitSize = true;
    CGroupLayoutCell::SetFixedSize(newFixedSize);
}

void CContentLayoutCell::UpdateSize()
{
    TakeContentSize();
    CGroupLayoutCell::UpdateSize();
}

/// A size that the layout itself gave the widget is not the widget's own: taken for that, a widget that was
/// stretched once could never shrink again.
void CContentLayoutCell::TakeContentSize()
{
    if (hasExplicitSize)
    {
        return;
    }
    const Core::CSize size = content.GetSize();
    if (!hasGivenSize || size != givenToContent)
    {
        StoreFixedSize(size);
    }
}

void CContentLayoutCell::Arrange(const Core::CPoint& point)
{
    const CWalk walk(*this);
    const unsigned arrangement = ++arrangements;
    ShowContent();
    content.Move(point);
    // Known before the widget hears of it: a widget that reports its new size must not have it taken as its
    // own.
    hasGivenSize = true;
    givenToContent = GetSize();
    content.SetSize(givenToContent);
    givenToContent = content.GetSize();
    ArrangeItems({0, 0});
    StorePosition(point);
    if (arrangements != arrangement)
    {
        // A listener made the cell arrange itself once more, where it stood before.
        content.Move(point);
    }
}

void CContentLayoutCell::SetShown(bool newShown)
{
    if (shown != newShown)
    {
        shown = newShown;
        ShowContent();
    }
}

} // namespace Mirel::Layout
