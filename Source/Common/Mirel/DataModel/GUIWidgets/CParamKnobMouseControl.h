#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/CLifeToken.h"
#include "Mirel/DataModel/Controls/CParamControl.h"
#include "Mirel/DataModel/GUIWidgets/IFineEditOpener.h"
#include "Mirel/DataModel/GUIWidgets/KnobSteps.h"
#include "Mirel/GUI/CMouseTarget.h"

namespace Mirel::DataModel::GUIWidgets
{

/// Turns a knob with the mouse: drags up or to the right raise the value, shift makes them fine, the
/// alternate key sets the default, the wheel moves by stops or pixels. Each change is one gesture of the
/// control. GUI thread.
class CParamKnobMouseControl : public GUI::CMouseTarget
{
public:
    /// Neither is owned; both must outlive this object. Without an opener double clicks do nothing.
    explicit CParamKnobMouseControl(Controls::CParamControl& control_, IFineEditOpener* opener_ = nullptr)
        : control(control_),
          opener(opener_)
    {
    }

    /// Pixels for the whole range: see KnobSteps.h. At first none is given.
    void SetPixelRange(float newPixelRange) { pixelRange = newPixelRange; }
    float GetPixelRange() const { return pixelRange; }

    /// Whether drags count to the right, or, as at first, upward.
    void SetHorizontal(bool newHorizontal) { horizontal = newHorizontal; }
    bool IsHorizontal() const { return horizontal; }

    bool IsDragging() const { return dragging; }
    Core::IEventProvider& GetDraggingChangedEventProvider() const { return draggingChanged; }

    bool OnLeftDown(const GUI::COSXMouseEvent& event) override;
    bool OnLeftUp(const GUI::COSXMouseEvent& event) override;
    bool OnLeftDoubleClick(const GUI::COSXMouseEvent& event) override;
    bool OnRightDown(const GUI::COSXMouseEvent& event) override;
    bool OnRightUp(const GUI::COSXMouseEvent& event) override;
    bool OnMouseDrag(const GUI::COSXMouseEvent& event) override;
    bool OnMouseWheel(const GUI::COSXMouseWheelEvent& event) override;
    void OnCaptureLost() override;

protected:
    Controls::CParamControl& GetControl() const { return control; }

    /// The drag measures from here on, where the control stands at that position.
    void MeasureFrom(Core::CPoint point, float position);

private:
    void ReadFineMode(const GUI::CModifierState& event);
    void SetDragging(bool newDragging);

    Controls::CParamControl& control;
    IFineEditOpener* opener;
    float pixelRange = noPixelRange;
    bool horizontal = false;
    bool dragging = false;
    bool fineAtLastEvent = false;
    Core::CPoint anchor; ///< Where the drag measures from.
    Core::CPoint lastPoint;
    float startPosition = 0.0F; ///< The control's at the anchor.
    mutable Core::CEventProvider draggingChanged;
    Core::CLifeToken life; ///< A change of the value may destroy the widget.
};

} // namespace Mirel::DataModel::GUIWidgets
