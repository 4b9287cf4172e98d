#pragma once

#include "Host/Run/CRunOptions.h"

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>

namespace Host
{

class CHostInstance;
class CPluginSession;
class CSnapshots;
class IAudioSource;
struct CRunSummary;

/// The program: reads the command line, does what it asks for, and answers with an exit code. Failures are
/// one line on the error stream.
class CHostProgram
{
public:
    /// `modulePath` is the module that is used unless the command line names another. On a terminal a run
    /// shows on `error` how far it has come.
    CHostProgram(std::ostream& out_, std::ostream& error_, std::string modulePath_, bool onTerminal_ = false);

    int Run(int argumentCount, const char* const* arguments);

private:
    bool Describe(const CPluginSession& session);
    bool RunInstance(const CPluginSession& session, std::string& message);
    std::unique_ptr<IAudioSource> OpenSource(std::string& message);
    bool LoadState(CHostInstance& instance, std::string& message) const;

    /// Passes over what is to be passed over; the frames from there that are to be played.
    std::int64_t FindPart(IAudioSource& source) const;
    bool Play(CHostInstance& instance, IAudioSource& source, std::int64_t frames, std::string& message);
    bool Paint(CSnapshots& snapshots, const std::string& path, std::string& message);
    bool Report(const CRunSummary& summary, std::string& message);
    bool SaveResults(CHostInstance& instance, std::string& message) const;
    int Fail(const std::string& message);

    std::ostream& out;
    std::ostream& error;
    bool onTerminal;
    CRunOptions options;
};

} // namespace Host
