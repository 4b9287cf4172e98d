#pragma once

#include "Host/Audio/CSoundFileWriter.h"
#include "Host/Audio/IAudioSource.h"
#include "Host/CHostInstance.h"
#include "Host/Run/CEventSchedule.h"
#include "Host/Run/CProgressBar.h"
#include "Host/Run/CRunOptions.h"
#include "Host/Run/CRunSummary.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Host
{

/// Plays audio through an instance as fast as it goes, with changes of parameters and MIDI messages on their
/// way. Plays the part of the host's audio thread and of its other threads, one after the other. One thread
/// only.
class COfflineRun
{
public:
    COfflineRun(CHostInstance& instance_, const CRunOptions& options_);

    /// Looks up all parameters and values, and sets those that hold from the start. False with one line in
    /// `error`; nothing is set then.
    bool Prepare(std::string& error) { return schedule.Prepare(error); }

    /// Lists the parameters as they stand.
    void PrintParameters(std::ostream& out) const { schedule.GetParameters().Print(out); }

    /// Calls back when so many frames were played; blocks are cut so that it is exact. In rising order.
    void StopAt(std::vector<std::int64_t> frames, std::function<void(std::size_t stop)> callback);

    /// Plays the source from where it stands, at most `frames`. `writer` is given what came out; null for
    /// none.
    CRunSummary Play(IAudioSource& source, std::int64_t frames, CSoundFileWriter* writer,
                     CProgressBar& progress);

private:
    std::int64_t FramesToNextStop(std::int64_t played) const;
    void CallStops(std::int64_t played);
    void NoteRefresh(CRunSummary& summary) const;

    CHostInstance& instance;
    const CRunOptions& options;
    CEventSchedule schedule;
    std::vector<std::int64_t> stops;
    std::function<void(std::size_t)> onStop;
    std::size_t nextStop = 0;
};

} // namespace Host
