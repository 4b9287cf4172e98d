#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Controls/CParamViewerConfig.h"
#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CColor.h"
#include "Mirel/Graphics/CFont.h"
#include "Mirel/Graphics/CTextFormat.h"

#include <string>
#include <vector>

namespace Mirel::DataModel::GUIWidgets
{

/// Prints the values of an axis, each at its place along it: at the stops of the axis, or at round values if
/// it has none. A label that would come too close to another is left out; the first, the last and that of
/// zero are the last to go. Labels stay within the area. GUI thread.
class CGUIRulerGraphics : public Graphics::CBaseGraphics
{
public:
    /// The axis is not owned and must outlive the graphics.
    explicit CGUIRulerGraphics(const Controls::CParamViewerConfig& axis_);

    void Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* region) override;
    void SetSize(Graphics::CSize newSize) override;

    /// A vertical ruler runs from the bottom to the top, others, as at first, from left to right.
    bool IsVertical() const { return vertical; }
    void SetVertical(bool newVertical) { SetProperty(vertical, newVertical); }

    Graphics::CColor GetColor() const { return color; }
    void SetColor(Graphics::CColor newColor);

    /// Without a font nothing is drawn.
    const Graphics::CSharedFont& GetFont() const { return font; }
    void SetFont(Graphics::CSharedFont newFont);

    /// Along the ruler: whether a label begins, has its middle or ends at its place. Across it: where labels
    /// stand between the margins. Center at first.
    Graphics::ETextHAlign GetHAlign() const { return hAlign; }
    void SetHAlign(Graphics::ETextHAlign newAlign) { SetProperty(hAlign, newAlign); }
    Graphics::ETextVAlign GetVAlign() const { return vAlign; }
    void SetVAlign(Graphics::ETextVAlign newAlign) { SetProperty(vAlign, newAlign); }

    /// Pixels at either end. Along the ruler the axis runs between them, so that a ruler that is longer than
    /// its graph can stand in line with it.
    int GetHMargin() const { return hMargin; }
    void SetHMargin(int newMargin) { SetProperty(hMargin, newMargin); }
    int GetVMargin() const { return vMargin; }
    void SetVMargin(int newMargin) { SetProperty(vMargin, newMargin); }

private:
    struct CLabel
    {
        std::string text;
        Graphics::CPoint position; ///< Of its top left corner.
    };

    template <class T>
    void SetProperty(T& property, const T& value)
    {
        if (property != value)
        {
            property = value;
            OnLayoutChanged();
        }
    }

    void OnLayoutChanged();
    void SetLabels();
    Graphics::CPoint PlaceLabel(float position, Graphics::CSize extent) const;

    const Controls::CParamViewerConfig& axis;
    bool vertical = false;
    Graphics::CColor color;
    Graphics::CSharedFont font;
    Graphics::ETextHAlign hAlign = Graphics::ETextHAlign::Center;
    Graphics::ETextVAlign vAlign = Graphics::ETextVAlign::Center;
    int hMargin = 0;
    int vMargin = 0;
    std::vector<CLabel> labels; ///< What was set last; a paint only draws it.
    bool labelsDirty = true;
    Core::TCommand<CGUIRulerGraphics> layoutChanged{this, &CGUIRulerGraphics::OnLayoutChanged};
    CoreUtilities::CCallbackHelper axisConnection;
    CoreUtilities::CCallbackHelper infoConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
