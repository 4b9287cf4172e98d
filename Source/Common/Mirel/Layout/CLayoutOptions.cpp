#include "Mirel/Layout/CLayoutOptions.h"

#include "Mirel/Layout/CLayoutScope.h"

namespace Mirel::Layout
{

namespace
{

bool Differ(float a, float b)
{
    return a < b || a > b;
}

} // namespace

CLayoutOptions::CLayoutOptions(const CLayoutOptions& other)
    : horizontal(other.horizontal),
      vertical(other.vertical),
      flex(other.flex)
{
}

void CLayoutOptions::SetAlign(EAxis axis, EAlign align)
{
    if (On(axis).align != align)
    {
        On(axis).align = align;
        NotifyChanged();
    }
}

void CLayoutOptions::SetPosition(EAxis axis, std::int32_t position)
{
    CAxisOptions& options = On(axis);
    if (!options.hasPosition || options.position != position)
    {
        options.position = position;
        options.hasPosition = true;
        NotifyChanged();
    }
}

void CLayoutOptions::SetRatio(EAxis axis, float ratio)
{
    if (Differ(On(axis).ratio, ratio))
    {
        On(axis).ratio = ratio;
        NotifyChanged();
    }
}

void CLayoutOptions::SetFlex(float newFlex)
{
    if (Differ(flex, newFlex))
    {
        flex = newFlex;
        NotifyChanged();
    }
}

void CLayoutOptions::NotifyChanged() const
{
    // A listener may remove the cell, and these options with it.
    const CLayoutScope scope;
    changed.Notify();
}

} // namespace Mirel::Layout
