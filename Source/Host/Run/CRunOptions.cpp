#include "Host/Run/CRunOptions.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <ostream>
#include <string_view>
#include <system_error>

namespace Host
{

namespace
{

constexpr int MostPoints = 10'000'000;

constexpr const char* Examples = R"(Examples:
  scope-bank --summary                            the demo signal, in figures
  scope-bank drums.wav --param "View Mode=Trigger" --param "Trigger Value=0.2" --curves trace.csv
  scope-bank mix.flac --at 2:"Stereo Mode=Mid-Side" --output same.wav
  scope-bank mix.flac --offset 30 --seconds 5 --block 64,0,512 --summary-json run.json
  scope-bank --list-params
  scope-bank --param "Delay=100" --save-preset late.preset
  scope-bank drums.wav --loop --audio             in a window, and heard
  scope-bank drums.wav --snapshot scope.png --snapshot-at 0.5 --size 1000x600
  scope-bank --skin my/skin.xml --watch --loop    for drawing a skin)";

/// Options as texts, before they are looked at.
struct CTexts
{
    std::vector<std::string> params;
    std::vector<std::string> timedParams;
    std::vector<std::string> midi;
    std::string blocks;
    std::string size;
};

/// One text each time it is given, so that it never swallows the file name behind it.
void AddRepeatable(CLI::App& app, const std::string& name, std::vector<std::string>& texts,
                   const std::string& type, const std::string& help)
{
    app.add_option(name, texts, help)->type_name(type)->allow_extra_args(false);
}

void AddInput(CLI::App& app, CRunOptions& options, CTexts& texts)
{
    app.add_option("FILE", options.inputFile, "Sound file to play; without one, a short demo signal");
    app.add_option("--offset", options.offset, "Seconds of the input to pass over")->type_name("S");
    app.add_option("--seconds", options.seconds, "Play no more than so many seconds")->type_name("S");
    app.add_option("--block", texts.blocks, "Frames per block (512), or a list that is used over and over")
        ->type_name("N[,N...]");
}

void AddParameters(CLI::App& app, CRunOptions& options, CTexts& texts)
{
    AddRepeatable(app, "--param", texts.params, "NAME=VALUE",
                  "Set a parameter, to a number or to a text that it shows; repeatable");
    AddRepeatable(app, "--at", texts.timedParams, "SECONDS:NAME=VALUE",
                  "The same before the first block that begins then or later; repeatable");
    AddRepeatable(app, "--midi", texts.midi, "SECONDS:STATUS,D1,D2", "Send a MIDI message; repeatable");
    app.add_flag("--bypass", options.bypass, "Switch the bypass on");
    app.add_option("--load-state", options.loadState, "Start from a saved state")->type_name("FILE");
    app.add_option("--load-preset", options.loadPreset, "Start from a preset")->type_name("FILE");
}

void AddResults(CLI::App& app, CRunOptions& options)
{
    app.add_option("--output", options.outputFile, "Write what came out, a WAV file of 32-bit floats")
        ->type_name("FILE");
    app.add_option("--curves", options.curvesFile, "Write the curves shown at the end, as CSV")
        ->type_name("FILE");
    app.add_option("--points", options.curvePoints, "Rows of the curves (1025)")->type_name("N");
    app.add_flag("--summary", options.summary, "Print levels, refreshes and the time it took");
    app.add_option("--summary-json", options.summaryFile, "Write the same as JSON")->type_name("FILE");
    app.add_option("--save-state", options.saveState, "Write the state at the end")->type_name("FILE");
    app.add_option("--save-preset", options.savePreset, "Write the preset at the end")->type_name("FILE");
}

void AddEditor(CLI::App& app, CRunOptions& options, CTexts& texts)
{
    app.add_flag("--loop", options.loops, "Play over and over, in the window");
    app.add_flag("--audio", options.isHeard,
                 "Play through JACK, in the window; else the clock sets the pace");
    app.add_option("--skin", options.skinFile, "Show another skin")->type_name("FILE");
    app.add_flag("--watch", options.watchesSkin, "Load the skin again whenever a file of it changes");
    app.add_option("--snapshot", options.snapshotFile, "Paint the editor at the end, as PNG")
        ->type_name("FILE");
    app.add_option("--snapshot-at", options.snapshotSeconds,
                   "Paint it then too, beside that file; repeatable")
        ->type_name("SECONDS")
        ->allow_extra_args(false);
    app.add_option("--size", texts.size, "The editor's size in pixels, in the place of the skin's own")
        ->type_name("WxH");
    app.add_flag("--offline", options.offline, "As fast as it goes, without a window");
}

void AddInformation(CLI::App& app, CRunOptions& options)
{
    app.add_flag("--list-params", options.listParams, "List the parameters and play nothing");
    app.add_flag("--describe", options.describe, "Print what the module declares, one declaration a line");
    app.add_option("--module", options.modulePath, "Load another module")->type_name("FILE");
}

template <class TItem>
bool ParseAll(const std::vector<std::string>& texts, std::vector<TItem>& items,
              bool (*parse)(std::string_view, TItem&, std::string&), std::string& error)
{
    for (const std::string& text : texts)
    {
        if (!parse(text, items.emplace_back(), error))
        {
            return false;
        }
    }
    return true;
}

/// Digits, an x, digits; each side from 1 to 16384.
bool ParsePictureSize(std::string_view text, CPictureSize& size, std::string& error)
{
    constexpr int mostPixels = 16384;
    const char* end = text.data() + text.size();
    const auto width = std::from_chars(text.data(), end, size.width);
    const bool hasSign = width.ec == std::errc() && width.ptr != end && *width.ptr == 'x';
    const auto height = hasSign ? std::from_chars(width.ptr + 1, end, size.height) : width;
    const bool isWhole = hasSign && height.ec == std::errc() && height.ptr == end;
    const auto isSide = [](int side) { return side >= 1 && side <= mostPixels; };
    if (!isWhole || !isSide(size.width) || !isSide(size.height))
    {
        error = "--size: two numbers from 1 to 16384 with an x between, not \"" + std::string(text) + '"';
        return false;
    }
    return true;
}

bool Refuse(bool refused, const char* message, std::string& error)
{
    if (refused)
    {
        error = message;
    }
    return refused;
}

bool Check(const CRunOptions& options, std::string& error)
{
    const bool noLength = options.seconds && !(*options.seconds >= 0.0);
    const bool noPoints = options.curvePoints < 2 || options.curvePoints > MostPoints;
    const bool isBeforeStart = !options.snapshotSeconds.empty() && !(options.snapshotSeconds.front() >= 0.0);
    const bool isWindowOnly = options.loops || options.isHeard || options.watchesSkin;
    return !Refuse(!(options.offset >= 0.0), "--offset: seconds are 0 or more", error) &&
           !Refuse(noLength, "--seconds: seconds are 0 or more", error) &&
           !Refuse(noPoints, "--points: from 2 to 10000000 rows", error) &&
           !Refuse(isBeforeStart, "--snapshot-at: seconds are 0 or more", error) &&
           !Refuse(!options.snapshotSeconds.empty() && options.snapshotFile.empty(),
                   "--snapshot-at: give --snapshot too", error) &&
           !Refuse(options.watchesSkin && options.skinFile.empty(), "--watch: give --skin too", error) &&
           !Refuse(isWindowOnly && options.IsOffline(),
                   "--loop, --audio and --watch are for the window, not for a run with a result", error) &&
           !Refuse(!options.loadState.empty() && !options.loadPreset.empty(),
                   "--load-state and --load-preset: give one of the two", error);
}

bool Interpret(const CTexts& texts, CRunOptions& options, std::string& error)
{
    const bool ok = ParseAll(texts.params, options.changes, &ParseParamChange, error) &&
                    ParseAll(texts.timedParams, options.changes, &ParseTimedParamChange, error) &&
                    ParseAll(texts.midi, options.midi, &ParseMidiMessage, error);
    std::sort(options.snapshotSeconds.begin(), options.snapshotSeconds.end());
    return ok && (texts.blocks.empty() || ParseBlockSizes(texts.blocks, options.blockSizes, error)) &&
           (texts.size.empty() || ParsePictureSize(texts.size, options.pictureSize.emplace(), error)) &&
           Check(options, error);
}

/// The first line: a message of the parser may go on with advice.
std::string FirstLine(const std::string& text)
{
    return text.substr(0, text.find('\n'));
}

} // namespace

bool CRunOptions::IsOffline() const
{
    return offline || describe || listParams || summary || !summaryFile.empty() || !outputFile.empty() ||
           !curvesFile.empty() || !saveState.empty() || !savePreset.empty() || !snapshotFile.empty();
}

EParsed ParseCommandLine(int argumentCount, const char* const* arguments, std::ostream& out,
                         CRunOptions& options, std::string& error)
{
    CLI::App app("Runs audio through the plug-in module that stands beside this program.", "scope-bank");
    app.footer(Examples);
    CTexts texts;
    AddInput(app, options, texts);
    AddParameters(app, options, texts);
    AddResults(app, options);
    AddEditor(app, options, texts);
    AddInformation(app, options);
    try
    {
        app.parse(argumentCount, arguments);
    }
    catch (const CLI::Success&)
    {
        out << app.help();
        return EParsed::Done;
    }
    catch (const CLI::ParseError& failure)
    {
        error = FirstLine(failure.what());
        return EParsed::Failed;
    }
    return Interpret(texts, options, error) ? EParsed::Run : EParsed::Failed;
}

} // namespace Host
