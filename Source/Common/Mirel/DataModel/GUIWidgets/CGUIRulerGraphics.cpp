#include "Mirel/DataModel/GUIWidgets/CGUIRulerGraphics.h"

#include "Mirel/DataModel/GUIWidgets/PlotForms.h"
#include "Mirel/DataModel/GUIWidgets/RulerLabels.h"
#include "Mirel/DataModel/GUIWidgets/RulerStops.h"
#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/CTextLayout.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace Mirel::DataModel::GUIWidgets
{

namespace
{

using Graphics::CPoint;
using Graphics::CSize;

std::string ToText(const Objects::IConstParamInfo& info, float value)
{
    char* text = nullptr;
    info.GetValueToText().ToText(value, text);
    const std::unique_ptr<char[]> owner(text);
    return text == nullptr ? std::string() : std::string(text);
}

CSize GetExtent(const Graphics::CSharedFont& font, const std::string& text)
{
    const auto layout = font->LayOut(text.c_str(), Graphics::CTextLayoutRequest());
    return layout == nullptr ? CSize() : layout->GetExtent();
}

/// 0 the text begins at the place, 1 has its middle there, 2 ends there. It does not leave 0 to length as
/// long as it fits in.
int AlignAt(int place, int extent, int align, int length)
{
    const int begin = align == 0 ? place : (align == 1 ? place - extent / 2 : place + 1 - extent);
    return std::clamp(begin, 0, std::max(length - extent, 0));
}

/// Between the margins of the other direction.
int AlignAcross(int length, int margin, int extent, int align)
{
    return align == 0 ? margin : (align == 1 ? (length - extent) / 2 : length - margin - extent);
}

} // namespace

CGUIRulerGraphics::CGUIRulerGraphics(const Controls::CParamViewerConfig& axis_)
    : axis(axis_),
      axisConnection(&axis_.GetLayoutChangedEventProvider(), &layoutChanged),
      infoConnection(&axis_.GetInfo().GetChangedEventProvider(), &layoutChanged)
{
}

void CGUIRulerGraphics::Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* /*region*/)
{
    if (GetSize().IsEmpty() || font == nullptr)
    {
        return;
    }
    if (std::exchange(labelsDirty, false))
    {
        SetLabels();
    }
    surface.SetTextNoClip(true);
    surface.SetFont(font);
    surface.SetPenColor(color);
    for (const CLabel& label : labels)
    {
        surface.DrawText(label.text.c_str(), label.position);
    }
}

void CGUIRulerGraphics::SetSize(CSize newSize)
{
    labelsDirty = labelsDirty || newSize != GetSize();
    CBaseGraphics::SetSize(newSize);
}

void CGUIRulerGraphics::SetColor(Graphics::CColor newColor)
{
    if (color != newColor)
    {
        color = newColor;
        RaiseChanged();
    }
}

void CGUIRulerGraphics::SetFont(Graphics::CSharedFont newFont)
{
    if (font != newFont)
    {
        font = std::move(newFont);
        OnLayoutChanged();
    }
}

void CGUIRulerGraphics::OnLayoutChanged()
{
    labelsDirty = true;
    RaiseChanged();
}

void CGUIRulerGraphics::SetLabels()
{
    // Room for a number of some digits, and for what keeps it apart from the next.
    constexpr float lineHeights[] = {3.5F, 2.5F};
    const auto lineHeight = static_cast<float>(std::max(font->GetAscent() + font->GetDescent(), 1.0));
    const auto length = static_cast<float>(vertical ? GetSize().height : GetSize().width);
    std::vector<CLabel> candidates;
    std::vector<CLabelExtent> extents;
    std::size_t zero = noLabel;
    for (const CRulerStop& stop : GetRulerStops(axis, length, lineHeight * lineHeights[vertical ? 1 : 0]))
    {
        std::string text = ToText(axis.GetInfo(), stop.value);
        const CSize extent = GetExtent(font, text);
        if (extent.IsEmpty())
        {
            continue;
        }
        const CPoint position = PlaceLabel(stop.position, extent);
        if (!(stop.value < 0.0F || stop.value > 0.0F))
        {
            zero = candidates.size();
        }
        extents.push_back(vertical ? CLabelExtent{position.y, position.y + extent.height}
                                   : CLabelExtent{position.x, position.x + extent.width});
        candidates.push_back({std::move(text), position});
    }
    const std::vector<bool> kept = ChooseLabels(extents, zero);
    labels.clear();
    for (std::size_t i = 0; i < candidates.size(); ++i)
    {
        if (kept[i])
        {
            labels.push_back(std::move(candidates[i]));
        }
    }
}

CPoint CGUIRulerGraphics::PlaceLabel(float position, CSize extent) const
{
    constexpr int most = 1 << 20; // so that sums have room
    const int across = std::clamp(hMargin, -most, most);
    const int down = std::clamp(vMargin, -most, most);
    const CSize area = GetSize();
    const auto toPixel = [position](int length, int margin)
    {
        const float inner = static_cast<float>(length) - 2.0F * static_cast<float>(margin) - 1.0F;
        return ToPixel(position * std::max(inner, 0.0F));
    };
    const int horizontal = static_cast<int>(hAlign);
    const int upright = static_cast<int>(vAlign);
    if (vertical)
    {
        const int place = area.height - 1 - down - toPixel(area.height, down);
        return {AlignAcross(area.width, across, extent.width, horizontal),
                AlignAt(place, extent.height, upright, area.height)};
    }
    return {AlignAt(across + toPixel(area.width, across), extent.width, horizontal, area.width),
            AlignAcross(area.height, down, extent.height, upright)};
}

} // namespace Mirel::DataModel::GUIWidgets
