#pragma once

#include "Host/Audio/CSoundFileWriter.h"
#include "Host/Audio/IAudioSource.h"
#include "Host/CHostInstance.h"
#include "Host/Run/CParameterSet.h"
#include "Host/Run/CProgressBar.h"
#include "Host/Run/CRunOptions.h"
#include "Host/Run/CRunSummary.h"

#include <cstddef>
#include <cstdint>
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
    bool Prepare(std::string& error);

    /// Lists the parameters as they stand.
    void PrintParameters(std::ostream& out) const { parameters.Print(out); }

    /// Plays the source from where it stands, at most `frames`. `writer` is given what came out; null for
    /// none.
    CRunSummary Play(IAudioSource& source, std::int64_t frames, CSoundFileWriter* writer,
                     CProgressBar& progress);

private:
    struct CChange
    {
        double seconds;
        std::string id;
        double normalized;
    };

    void ApplyEvents(double seconds);
    void NoteRefresh(CRunSummary& summary) const;

    CHostInstance& instance;
    const CRunOptions& options;
    CParameterSet parameters;
    std::vector<CChange> changes; ///< By time.
    std::vector<CMidiMessage> midi;
    std::size_t nextChange = 0;
    std::size_t nextMidi = 0;
};

} // namespace Host
