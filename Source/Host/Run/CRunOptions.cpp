#include "Host/Run/CRunOptions.h"

#include <CLI/CLI.hpp>

#include <ostream>
#include <string_view>

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
  scope-bank --param "Delay=100" --save-preset late.preset)";

/// Options as texts, before they are looked at.
struct CTexts
{
    std::vector<std::string> params;
    std::vector<std::string> timedParams;
    std::vector<std::string> midi;
    std::string blocks;
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
    return !Refuse(!(options.offset >= 0.0), "--offset: seconds are 0 or more", error) &&
           !Refuse(noLength, "--seconds: seconds are 0 or more", error) &&
           !Refuse(noPoints, "--points: from 2 to 10000000 rows", error) &&
           !Refuse(!options.loadState.empty() && !options.loadPreset.empty(),
                   "--load-state and --load-preset: give one of the two", error);
}

bool Interpret(const CTexts& texts, CRunOptions& options, std::string& error)
{
    const bool ok = ParseAll(texts.params, options.changes, &ParseParamChange, error) &&
                    ParseAll(texts.timedParams, options.changes, &ParseTimedParamChange, error) &&
                    ParseAll(texts.midi, options.midi, &ParseMidiMessage, error);
    return ok && (texts.blocks.empty() || ParseBlockSizes(texts.blocks, options.blockSizes, error)) &&
           Check(options, error);
}

/// The first line: a message of the parser may go on with advice.
std::string FirstLine(const std::string& text)
{
    return text.substr(0, text.find('\n'));
}

} // namespace

EParsed ParseCommandLine(int argumentCount, const char* const* arguments, std::ostream& out,
                         CRunOptions& options, std::string& error)
{
    CLI::App app("Runs audio through the plug-in module that stands beside this program.", "scope-bank");
    app.footer(Examples);
    CTexts texts;
    AddInput(app, options, texts);
    AddParameters(app, options, texts);
    AddResults(app, options);
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
