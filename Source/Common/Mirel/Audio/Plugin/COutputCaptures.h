#pragma once

#include "Mirel/Audio/DSP/IFilter.h"
#include "Mirel/Audio/Plugin/CParamCapture.h"
#include "Mirel/Audio/Plugin/CStringCapture.h"
#include "Mirel/Audio/Plugin/TFunctionCapture.h"
#include "Mirel/Containers/TDynamicCollection.h"
#include "Mirel/Math/IFunction.h"
#include "Mirel/System/CCriticalSection.h"

namespace Mirel::Audio::Plugin
{

using CCurveCapture = TFunctionCapture<Math::IFunction>;
using CSurfaceCapture = TFunctionCapture<Math::IBinaryFunction>;

/// Where a filter's outputs cross from the audio thread to all others: for each output a capture that holds
/// what was published last. The audio thread never waits here: while a reader holds the lock it leaves the
/// publication to its next block.
///
/// Life: construction, then Prepare after each of the filter's Init; then the audio thread publishes, and
/// readers on any other thread look at the captures. The captures live as long as this object.
class COutputCaptures
{
public:
    /// One capture for each output that the filter describes, with the value of the description.
    explicit COutputCaptures(const DSP::IFilter& filter);
    COutputCaptures(const COutputCaptures&) = delete;
    COutputCaptures& operator=(const COutputCaptures&) = delete;

    /// Makes what publications of the filter need, so that they need not allocate. After each Init of the
    /// filter, while no audio runs.
    void Prepare(const DSP::IFilter& filter);

    /// Publishes the outputs that changed, and cleans the filter's marks of those. Audio thread, after the
    /// filter's UpdateOutputs; must not be called from within a reader's action.
    ///
    /// False if a reader holds the lock. Then nothing is lost, if the caller does not reset the refresh
    /// clock: output stays due, and the next block publishes.
    [[nodiscard]] bool Publish(DSP::IFilter& filter);

    /// Fires the events of the captures that were published since the last delivery. Any thread but the audio
    /// thread; the listeners run on it.
    void DeliverChanges() const;

    const Containers::TIConstVector<CParamCapture>& GetParams() const { return outputParamCaptures; }
    const Containers::TIConstVector<CStringCapture>& GetStrings() const { return outputStringCaptures; }
    const Containers::TIConstVector<CCurveCapture>& GetCurves() const { return outputCurveCaptures; }
    const Containers::TIConstVector<CSurfaceCapture>& GetSurfaces() const { return outputSurfaceCaptures; }

    /// Holds publications back while it is held: for a reader that wants several outputs of the same moment.
    /// Not for the audio thread.
    System::CCriticalSection& GetLock() const { return captureLock; }

private:
    mutable System::CCriticalSection captureLock; ///< Reading changes nothing of the captures.
    Containers::TDynamicCollection<CParamCapture> outputParamCaptures;
    Containers::TDynamicCollection<CStringCapture> outputStringCaptures;
    Containers::TDynamicCollection<CCurveCapture> outputCurveCaptures;
    Containers::TDynamicCollection<CSurfaceCapture> outputSurfaceCaptures;
};

} // namespace Mirel::Audio::Plugin
