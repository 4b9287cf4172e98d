#pragma once

#include "AAXPlugin/Interface/IACFUnknown.h"

/// The curves that an instance publishes at its refresh rate, for a host that wants them without an editor:
/// to print, to measure, to test. An addition of ours; a parameters object of this plug-in answers to it, and
/// other hosts need not know it.
///
/// Any thread but the audio thread, while the process procedure may run. A curve that does not exist, or a
/// null argument, gives Failed.
class IPublishedCurves : public IACFUnknown
{
public:
    virtual std::int32_t GetCurveCount(std::int32_t* count) = 0;

    /// Lives as long as the object.
    virtual std::int32_t GetCurveName(std::int32_t curve, const char** name) = 0;

    /// The range of x and y that the curve's description gives.
    virtual std::int32_t GetCurveRange(std::int32_t curve, float* minX, float* maxX, float* minY,
                                       float* maxY) = 0;

    /// The values of one and the same publication at `count` places. Before the first publication all are 0.
    virtual std::int32_t EvaluateCurve(std::int32_t curve, const float* x, std::int32_t count, float* y) = 0;

    /// How often output was due so far, and where that was the last time: samples processed by then, the
    /// block in which it was due included. Both 0 before the first. Exact between blocks.
    virtual std::int32_t GetRefreshes(std::int64_t* count, std::int64_t* lastPosition) = 0;

    /// How often curves were handed over for it: a hand-over waits for a later block while somebody reads.
    virtual std::int32_t GetPublications(std::int64_t* count) = 0;

protected:
    ~IPublishedCurves() = default;
};
