#pragma once

#include "Host/CHostInstance.h"
#include "Host/Run/CParameterSet.h"
#include "Host/Run/CRunOptions.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Host
{

/// Changes of parameters and MIDI messages on their way to an instance, by time.
class CEventSchedule
{
public:
    CEventSchedule(CHostInstance& instance_, const CRunOptions& options_);

    /// Looks up all parameters and values, and applies what holds from the start. False with one line in
    /// `error`; nothing is set then.
    bool Prepare(std::string& error);

    /// Sets the parameters whose time has come. Any thread but the audio thread, always the same one.
    void ApplyChanges(double seconds);

    /// Adds the messages whose time has come to the next block. Audio thread.
    void ApplyMidi(double seconds);

    const CParameterSet& GetParameters() const { return parameters; }

private:
    struct CChange
    {
        double seconds;
        std::string id;
        double normalized;
    };

    CHostInstance& instance;
    const CRunOptions& options;
    CParameterSet parameters;
    std::vector<CChange> changes; ///< By time.
    std::vector<CMidiMessage> midi;
    std::size_t nextChange = 0;
    std::size_t nextMidi = 0;
};

} // namespace Host
