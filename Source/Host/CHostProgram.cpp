#include "Host/CHostProgram.h"

#include "Host/Audio/CDemoSource.h"
#include "Host/Audio/CSoundFileSource.h"
#include "Host/CDescriptionPrinter.h"
#include "Host/CHostInstance.h"
#include "Host/CPluginSession.h"
#include "Host/Editor/CSnapshots.h"
#include "Host/Live/CLiveRun.h"
#include "Host/Run/COfflineRun.h"
#include "Host/Run/CurvesFile.h"
#include "Host/Run/StateFiles.h"
#include "Mirel/Serialization/WholeFile.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>
#include <ostream>
#include <utility>

namespace Host
{

namespace
{

constexpr int Success = 0;
constexpr int Failure = 1;

/// What is painted where no window can be shown and nothing else was asked for.
constexpr const char* DefaultSnapshot = "scope-bank.png";

/// Frames in so many seconds; all that there can be for more than fit a counter.
std::int64_t FramesIn(double seconds, double sampleRate)
{
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max() / 2;
    const double frames = seconds * sampleRate;
    return frames < static_cast<double>(most) ? std::llround(frames) : most;
}

/// Whether a run leaves something that speaks for itself.
bool HasFileResult(const CRunOptions& options)
{
    return !options.summaryFile.empty() || !options.outputFile.empty() || !options.curvesFile.empty() ||
           !options.saveState.empty() || !options.savePreset.empty();
}

std::vector<std::int64_t> FramesOfSnapshots(const CRunOptions& options, double sampleRate)
{
    std::vector<std::int64_t> frames;
    for (const double seconds : options.snapshotSeconds)
    {
        frames.push_back(FramesIn(seconds, sampleRate));
    }
    return frames;
}

} // namespace

CHostProgram::CHostProgram(std::ostream& out_, std::ostream& error_, std::string modulePath_,
                           bool onTerminal_)
    : out(out_),
      error(error_),
      onTerminal(onTerminal_)
{
    options.modulePath = std::move(modulePath_);
}

int CHostProgram::Run(int argumentCount, const char* const* arguments)
{
    std::string message;
    switch (ParseCommandLine(argumentCount, arguments, out, options, message))
    {
    case EParsed::Done:
        return Success;
    case EParsed::Failed:
        return Fail(message);
    case EParsed::Run:
        break;
    }
    CPluginSession session;
    if (!session.Open(options.modulePath, message))
    {
        return Fail(message);
    }
    const bool done = options.describe ? Describe(session) : RunInstance(session, message);
    if (!done)
    {
        return Fail(message);
    }
    return session.Close(message) ? Success : Fail(message);
}

bool CHostProgram::Describe(const CPluginSession& session)
{
    CDescriptionPrinter(out).Print(*session.GetCollection());
    return true;
}

bool CHostProgram::RunInstance(const CPluginSession& session, std::string& message)
{
    const std::unique_ptr<IAudioSource> source = OpenSource(message);
    if (source == nullptr)
    {
        return false;
    }
    const CInstanceSetup setup = {source->GetChannelCount(), source->GetSampleRate()};
    const auto instance = CHostInstance::Make(*session.GetCollection(), setup, message);
    if (instance == nullptr || !LoadState(*instance, message))
    {
        return false;
    }
    const std::int64_t frames = FindPart(*source);
    if (!options.IsOffline())
    {
        CLiveRun live(*instance, options, error);
        if (live.GetPlatform().HasDisplay())
        {
            return live.Run(*source, frames, message);
        }
        options.snapshotFile = DefaultSnapshot;
    }
    return Play(*instance, *source, frames, message) && SaveResults(*instance, message);
}

std::int64_t CHostProgram::FindPart(IAudioSource& source) const
{
    const double rate = source.GetSampleRate();
    const std::int64_t skipped = std::min(FramesIn(options.offset, rate), source.GetFrameCount());
    source.Skip(skipped);
    const std::int64_t left = source.GetFrameCount() - skipped;
    return options.seconds ? std::min(left, FramesIn(*options.seconds, rate)) : left;
}

std::unique_ptr<IAudioSource> CHostProgram::OpenSource(std::string& message)
{
    if (options.inputFile.empty())
    {
        return std::make_unique<CDemoSource>();
    }
    auto file = std::make_unique<CSoundFileSource>();
    if (!file->Open(options.inputFile, message))
    {
        return nullptr;
    }
    if (file->GetFileChannelCount() > file->GetChannelCount())
    {
        error << "scope-bank: \"" << options.inputFile << "\" has " << file->GetFileChannelCount()
              << " channels; the first two are played\n";
    }
    return file;
}

bool CHostProgram::LoadState(CHostInstance& instance, std::string& message) const
{
    return (options.loadState.empty() || Host::LoadState(instance, options.loadState, message)) &&
           (options.loadPreset.empty() || LoadPreset(instance, options.loadPreset, message));
}

bool CHostProgram::Play(CHostInstance& instance, IAudioSource& source, std::int64_t frames,
                        std::string& message)
{
    COfflineRun run(instance, options);
    if (!run.Prepare(message))
    {
        return false;
    }
    if (options.listParams)
    {
        run.PrintParameters(out);
        return true;
    }
    CSoundFileWriter writer;
    const bool writes = !options.outputFile.empty();
    const double rate = source.GetSampleRate();
    if (writes && !writer.Open(options.outputFile, static_cast<int>(rate), source.GetChannelCount(), message))
    {
        return false;
    }
    CSnapshots snapshots;
    const bool paints = !options.snapshotFile.empty();
    if (paints && !snapshots.Open(instance, options, error, message))
    {
        return false;
    }
    bool painted = true;
    run.StopAt(FramesOfSnapshots(options, rate),
               [&](std::size_t stop)
               {
                   const double seconds = options.snapshotSeconds[stop];
                   painted = painted &&
                             Paint(snapshots, CSnapshots::NameAt(options.snapshotFile, seconds), message);
               });
    CProgressBar progress(error, onTerminal, frames, rate);
    const CRunSummary summary = run.Play(source, frames, writes ? &writer : nullptr, progress);
    painted = painted && (!paints || Paint(snapshots, options.snapshotFile, message));
    return painted && Report(summary, message) && (!writes || writer.Finish(message));
}

bool CHostProgram::Paint(CSnapshots& snapshots, const std::string& path, std::string& message)
{
    if (!snapshots.Take(path, message))
    {
        return false;
    }
    out << "painted " << std::filesystem::absolute(path).string() << '\n';
    return true;
}

bool CHostProgram::Report(const CRunSummary& summary, std::string& message)
{
    if (options.summary || !HasFileResult(options))
    {
        PrintSummary(summary, out);
    }
    if (!options.summaryFile.empty() &&
        !Mirel::Serialization::WriteFileWhole(options.summaryFile.c_str(), SummaryJson(summary)))
    {
        message = "cannot write \"" + options.summaryFile + '"';
        return false;
    }
    return true;
}

bool CHostProgram::SaveResults(CHostInstance& instance, std::string& message) const
{
    if (!options.curvesFile.empty() && instance.GetCurves() == nullptr)
    {
        message = "the plug-in publishes no curves";
        return false;
    }
    return (options.curvesFile.empty() ||
            WriteCurves(*instance.GetCurves(), options.curvePoints, options.curvesFile, message)) &&
           (options.saveState.empty() || SaveState(instance, options.saveState, message)) &&
           (options.savePreset.empty() || SavePreset(instance, options.savePreset, message));
}

int CHostProgram::Fail(const std::string& message)
{
    error << "scope-bank: " << message << '\n';
    return Failure;
}

} // namespace Host
