#include "Mirel/DataModel/Controls/CParamViewerConfig.h"

#include "Mirel/DataModel/Controls/ValueOfKind.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/Math/TFunction.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

namespace Mirel::DataModel::Controls
{

namespace
{

using Identity = Math::TFunction<&Math::FunctionsLibrary::Identity>;

bool Differ(float a, float b)
{
    return a < b || a > b;
}

/// 1 for 0: an empty range is mapped by distance instead of being divided by, as links do.
float InverseOrOne(float value)
{
    return Differ(value, 0.0F) ? 1.0F / value : 1.0F;
}

bool IsIdentity(const Math::IFunction& function)
{
    const char* key = function.GetTypeKey();
    return key != nullptr && std::string_view(key) == Identity::classKey;
}

/// Drops an identity at once, so that evaluation need not call it.
void Hold(Core::TOwnership<const Math::IFunction>& holder, const Math::IFunction* function, bool owned)
{
    holder.Set(function, owned);
    if (function != nullptr && IsIdentity(*function))
    {
        holder.Release();
    }
}

float Evaluate(const Core::TOwnership<const Math::IFunction>& function, float x)
{
    return function ? (*function)(x) : x;
}

const Math::IFunction& OrIdentity(const Core::TOwnership<const Math::IFunction>& function)
{
    return function ? *function : Math::SharedFunction<&Math::FunctionsLibrary::Identity>();
}

/// Truncated; what no 32-bit integer holds gives the nearest that one holds, NaN the lowest.
int TruncateWithin(double value)
{
    const int truncated = Core::TruncateToInt32(value);
    return truncated == std::numeric_limits<int>::min() && value > 0.0 ? std::numeric_limits<int>::max()
                                                                       : truncated;
}

} // namespace

CParamViewerConfig::CParamViewerConfig(const Objects::IConstParamInfo& info_)
    : info(&info_),
      infoConnection(&info_.GetChangedEventProvider(), &infoChanged)
{
    ReadInfo();
    positionsCount = NaturalPositionsCount(type, min, max);
    UpdateMapping();
}

const Math::IFunction& CParamViewerConfig::GetResponseCurve() const
{
    return OrIdentity(responseCurve);
}

const Math::IFunction& CParamViewerConfig::GetInverseCurve() const
{
    return OrIdentity(inverseCurve);
}

void CParamViewerConfig::SetReverse(bool newReverse)
{
    if (reverse != newReverse)
    {
        reverse = newReverse;
        UpdateMapping();
        layoutChanged.Notify();
    }
}

void CParamViewerConfig::SetLogScale(bool newLogScale)
{
    if (logScale != newLogScale)
    {
        logScale = newLogScale;
        UpdateMapping();
        layoutChanged.Notify();
    }
}

void CParamViewerConfig::SetResponseCurve(const Math::IFunction* curve, const Math::IFunction* inverse,
                                          bool owned)
{
    const bool same = curve == inverse;
    Hold(responseCurve, curve, owned);
    Hold(inverseCurve, same ? responseCurve.Get() : inverse, owned && !same);
    UpdateMapping();
    layoutChanged.Notify();
}

void CParamViewerConfig::SetZoom(float newZoom)
{
    if (Differ(zoom, newZoom))
    {
        zoom = std::max(newZoom, 1.0F);
        UpdateWindow();
        UpdateMapping();
        zoomChanged.Notify();
        layoutChanged.Notify();
    }
}

void CParamViewerConfig::SetOffset(float newOffset)
{
    if (Differ(offset, newOffset))
    {
        offset = newOffset;
        UpdateWindow();
        offsetChanged.Notify();
        layoutChanged.Notify();
    }
}

void CParamViewerConfig::SetZoomPositions(bool newZoomPositions)
{
    if (zoomPositions != newZoomPositions)
    {
        zoomPositions = newZoomPositions;
        UpdateMapping();
        layoutChanged.Notify();
    }
}

void CParamViewerConfig::SetPositionsCount(int count)
{
    if (StorePositionsCount(count))
    {
        layoutChanged.Notify();
    }
}

float CParamViewerConfig::GetVisiblePositions() const
{
    return effectiveCount == continuous ? -1.0F : static_cast<float>(effectiveCount - 1) * invZoom + 1.0F;
}

void CParamViewerConfig::ResetPositionsCount()
{
    SetPositionsCount(NaturalPositionsCount(type, min, max));
}

float CParamViewerConfig::GetDefaultPosition() const
{
    return ValueToPosition(info->GetDefault(), true);
}

float CParamViewerConfig::GetMinPosition() const
{
    return ValueToPosition(reverse ? max : min, true);
}

float CParamViewerConfig::GetMaxPosition() const
{
    return ValueToPosition(reverse ? min : max, true);
}

bool CParamViewerConfig::StorePositionsCount(int count)
{
    const int natural = NaturalPositionsCount(type, min, max);
    if (natural != continuous && (count < 0 || count > natural))
    {
        count = natural;
    }
    count = count < 0 ? continuous : std::max(count, 1);
    if (count == positionsCount)
    {
        return false;
    }
    positionsCount = count;
    UpdateMapping();
    return true;
}

int CParamViewerConfig::NaturalPositionsCount(int type, float min, float max)
{
    if (type == Objects::ValueKindInteger)
    {
        const double steps = static_cast<double>(max) - static_cast<double>(min);
        return std::max(TruncateWithin(steps + 1.0), 1);
    }
    return Objects::IsWholeValueKind(type) ? 2 : continuous;
}

void CParamViewerConfig::OnInfoChanged()
{
    const int oldNatural = NaturalPositionsCount(type, min, max);
    if (info->GetType() == type && !Differ(info->GetMin(), min) && !Differ(info->GetMax(), max))
    {
        return;
    }
    ReadInfo();
    // A count that nobody chose goes with the range; a chosen one stays as far as the range has room for it.
    StorePositionsCount(positionsCount == oldNatural ? NaturalPositionsCount(type, min, max)
                                                     : positionsCount);
    UpdateMapping();
    layoutChanged.Notify();
}

void CParamViewerConfig::ReadInfo()
{
    type = info->GetType();
    min = info->GetMin();
    max = info->GetMax();
    range = max - min;
    invRange = InverseOrOne(range);
    ratio = max / min;
    hasLogarithm = ratio > 0.0F && ratio < std::numeric_limits<float>::infinity();
    invLogRange = hasLogarithm ? InverseOrOne(std::log(ratio)) : 0.0F;
}

void CParamViewerConfig::UpdateWindow()
{
    offsetAmount = (zoom - 1.0F) * offset;
    invZoom = 1.0F / zoom;
}

void CParamViewerConfig::UpdateMapping()
{
    effectiveCount = positionsCount;
    if (positionsCount != continuous && !zoomPositions)
    {
        effectiveCount =
            TruncateWithin(static_cast<double>(static_cast<float>(positionsCount - 1) * zoom + 1.0F));
    }
    const bool straight = effectiveCount == continuous && !reverse && !logScale;
    straightToPosition = straight && !inverseCurve;
    straightToValue = straight && !responseCurve; // whole kinds, which round, always have stops
}

float CParamViewerConfig::BentValueToPosition(float value) const
{
    float normalized = 0.0F;
    if (!logScale)
    {
        normalized = (value - min) * invRange;
    }
    else if (hasLogarithm)
    {
        normalized = std::log(value / min) * invLogRange;
    }
    const float y = Evaluate(inverseCurve, normalized);
    return ToStop(reverse ? 1.0F - y : y);
}

float CParamViewerConfig::BentPositionToValue(float t) const
{
    t = ToStop(t);
    const float f = Evaluate(responseCurve, reverse ? 1.0F - t : t);
    float value = range * f + min;
    if (logScale)
    {
        value = hasLogarithm ? std::pow(ratio, f) * min : min;
    }
    return ValueOfKind(type, min, max, value);
}

float CParamViewerConfig::ToStop(float normalized) const
{
    if (effectiveCount == continuous)
    {
        return normalized;
    }
    if (effectiveCount < 2)
    {
        return 0.0F;
    }
    const auto last = static_cast<float>(effectiveCount - 1);
    const int stop = TruncateWithin(static_cast<double>(normalized * last) + 0.5);
    return static_cast<float>(stop) / last;
}

} // namespace Mirel::DataModel::Controls
