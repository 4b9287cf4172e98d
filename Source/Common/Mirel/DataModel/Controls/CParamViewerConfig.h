#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/Numeric.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Objects/IConstParamInfo.h"
#include "Mirel/Math/IFunction.h"

namespace Mirel::DataModel::Controls
{

/// An axis: maps values of a described range to positions on a widget, 0 to 1, and back. The way runs through
/// the scale, the response curve, reversal, stops and the zoomed window, and the range follows the
/// description. A zoomed axis has positions outside 0 to 1 for values outside its window.
/// GUI thread only. The two mappings allocate nothing.
class CParamViewerConfig
{
public:
    /// The count of an axis without stops.
    static constexpr int continuous = -1;

    /// The description is not owned and must outlive the axis. The axis begins linear, unzoomed and with the
    /// natural count of stops.
    explicit CParamViewerConfig(const Objects::IConstParamInfo& info_);
    CParamViewerConfig(const CParamViewerConfig&) = delete;
    CParamViewerConfig& operator=(const CParamViewerConfig&) = delete;
    virtual ~CParamViewerConfig() = default;

    const Objects::IConstParamInfo& GetInfo() const { return *info; }

    /// Fires when the zoom changes.
    Core::IEventProvider& GetZoomChangedEventProvider() const { return zoomChanged; }

    /// Fires when the offset changes.
    Core::IEventProvider& GetOffsetChangedEventProvider() const { return offsetChanged; }

    /// Fires on every change of the mapping; after the two above, where they fire.
    Core::IEventProvider& GetLayoutChangedEventProvider() const { return layoutChanged; }

    /// Position to normalised value.
    const Math::IFunction& GetResponseCurve() const;

    /// Normalised value to position.
    const Math::IFunction& GetInverseCurve() const;

    /// The axis runs from max to min.
    virtual void SetReverse(bool newReverse);
    virtual bool IsReversed() const { return reverse; }

    /// Logarithmic between min and max. In a range that has no logarithm (an end at 0, or ends of different
    /// signs) every value then stands where min does, and every position reads min.
    virtual void SetLogScale(bool newLogScale);
    virtual bool IsLogScale() const { return logScale; }

    /// Two functions on 0 to 1, each the inverse of the other; null for the identity. With owned the axis
    /// destroys them in the end, otherwise they must outlive their use here. Always fires.
    virtual void SetResponseCurve(const Math::IFunction* curve, const Math::IFunction* inverse, bool owned);

    /// How many times larger than the widget the whole axis is; below 1 counts as 1.
    virtual void SetZoom(float newZoom);
    virtual float GetZoom() const { return zoom; }

    /// Where in the zoomed axis the widget's window stands: 0 at its beginning, 1 at its end.
    virtual void SetOffset(float newOffset);
    virtual float GetOffset() const { return offset; }

    /// Whether zooming spreads the stops. If not, it offers more of them, the same distance apart on screen.
    virtual void SetZoomPositions(bool newZoomPositions);
    virtual bool GetZoomPositions() const { return zoomPositions; }

    /// The number of stops: 0 counts as 1. A negative count is no stops on a real, and the natural count on
    /// whole kinds, which also is their limit.
    virtual void SetPositionsCount(int count);

    /// The stops of the whole axis, or continuous.
    virtual int GetPositionsCount() const { return effectiveCount; }

    /// The stops in the widget's window, with fractions, or -1.
    virtual float GetVisiblePositions() const;

    /// Back to the natural count: two for the two-state kinds, one for each integer, none for a real.
    virtual void ResetPositionsCount();

    /// Of the description's default, within 0 to 1.
    virtual float GetDefaultPosition() const;

    /// Of the end of the range where the axis begins, within 0 to 1.
    virtual float GetMinPosition() const;

    /// Of the end of the range where the axis ends, within 0 to 1.
    virtual float GetMaxPosition() const;

    /// Clamped, the position lies in 0 to 1, and that of NaN is 0.
    virtual float ValueToPosition(float value, bool clamp) const;

    /// The value at a position, on a stop if there are stops, and of the description's kind: whole for an
    /// integer, min or max for the two-state kinds.
    virtual float PositionToValue(float position) const;

protected:
    /// NaN gives 0.
    static float ClampPosition(float position)
    {
        return position > 0.0F ? (position < 1.0F ? position : 1.0F) : 0.0F;
    }

    /// The count that is stored, which the zoom does not touch.
    int GetStoredPositionsCount() const { return positionsCount; }

    /// SetPositionsCount without its event; whether the stored count changed.
    bool StorePositionsCount(int count);

    void NotifyLayoutChanged() const { layoutChanged.Notify(); }

private:
    static int NaturalPositionsCount(int type, float min, float max);

    void OnInfoChanged();
    void ReadInfo();
    void UpdateWindow();
    void UpdateMapping();
    float BentValueToPosition(float value) const;
    float BentPositionToValue(float t) const;
    float ToStop(float normalized) const;

    int positionsCount = continuous;
    bool reverse = false;
    bool logScale = false;
    const Objects::IConstParamInfo* info;
    mutable Core::CEventProvider zoomChanged; ///< Listening to an axis changes nothing of it; so below.
    mutable Core::CEventProvider offsetChanged;
    mutable Core::CEventProvider layoutChanged;
    Core::TOwnership<const Math::IFunction> responseCurve; ///< Null for the identity, which costs no call.
    Core::TOwnership<const Math::IFunction> inverseCurve;
    float zoom = 1.0F;
    float offset = 0.0F;
    float min = 0.0F;
    float max = 0.0F;
    float invRange = 1.0F;
    float invLogRange = 1.0F;
    float ratio = 1.0F;
    float offsetAmount = 0.0F;
    float invZoom = 1.0F;
    bool zoomPositions = true;

    // What follows from the fields above, kept so that a pixel of a graph does not work it out again.
    int type = 0;
    float range = 0.0F;
    int effectiveCount = continuous;
    bool hasLogarithm = false;
    bool straightToPosition = true; ///< Value to position is two multiplications and two sums.
    bool straightToValue = true;

    Core::TCommand<CParamViewerConfig> infoChanged{this, &CParamViewerConfig::OnInfoChanged};
    CoreUtilities::CCallbackHelper infoConnection;
};

inline float CParamViewerConfig::ValueToPosition(float value, bool clamp) const
{
    const float normalized = straightToPosition ? (value - min) * invRange : BentValueToPosition(value);
    const float position = normalized * zoom - offsetAmount;
    return clamp ? ClampPosition(position) : position;
}

inline float CParamViewerConfig::PositionToValue(float position) const
{
    const float t = (position + offsetAmount) * invZoom;
    return straightToValue ? range * t + min : BentPositionToValue(t);
}

} // namespace Mirel::DataModel::Controls
