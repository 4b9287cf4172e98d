#include "SkinCheck/SkinCheckProgram.h"

#include "SkinCheck/CCheckReport.h"
#include "SkinCheck/CheckSkin.h"
#include "SkinCheck/FormulaCheck.h"
#include "SkinCheck/JsonText.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

namespace SkinCheck
{

using Mirel::CoreUtilities::CMessageKind;

namespace
{

constexpr int hasErrors = 2;

struct SOptions
{
    SCheckOptions check;
    std::string formula;
    float x = 0.0F;
    float y = 0.0F;
    bool expand = false;
    bool dump = false;
    bool state = false;
    bool infos = false;
    bool json = false;
};

bool IsLink(const SExpandedElement& element)
{
    return element.name.ends_with("LINK") || element.name == "PARAM_CONNECTION";
}

std::string AttributesText(const SExpandedElement& element)
{
    std::string text;
    for (const auto& [name, value] : element.attributes)
    {
        text += ' ';
        text += name;
        text += "=\"";
        text += value;
        text += '"';
    }
    return text;
}

const char* ColourOf(int kind, bool colours)
{
    if (!colours)
    {
        return "";
    }
    return kind == 0 ? "\033[31m" : kind == 1 ? "\033[33m" : "\033[2m";
}

void PrintMessages(const SCheckResult& result, const SOptions& options, bool colours, std::ostream& out)
{
    for (const SCheckMessage& message : result.log.GetMessages())
    {
        if (message.kind == CMessageKind::Info && !options.infos)
        {
            continue;
        }
        if (!message.file.empty())
        {
            out << message.file << ':';
            if (message.line > 0)
            {
                out << message.line << ':';
            }
            out << ' ';
        }
        out << ColourOf(message.kind, colours) << CMessageKind::GetName(message.kind)
            << (colours ? "\033[0m" : "") << ": " << message.text << '\n';
    }
}

void PrintText(const SCheckResult& result, const SOptions& options, bool colours, std::ostream& out)
{
    PrintMessages(result, options, colours, out);
    for (const SExpandedElement& element : result.elements)
    {
        if (options.expand)
        {
            out << std::string(static_cast<std::size_t>(element.depth) * 2, ' ') << '<' << element.name
                << AttributesText(element) << ">\n";
        }
    }
    if (options.dump)
    {
        for (const auto& object : result.objects)
        {
            out << ToLine(object) << '\n';
        }
        for (const SExpandedElement& element : result.elements)
        {
            if (IsLink(element))
            {
                out << element.name << AttributesText(element) << '\n';
            }
        }
    }
    if (options.state)
    {
        out << result.state << '\n';
    }
}

/// Calls print for each item, with commas between them, as a JSON list under that name.
template <class Items, class Print>
void PrintList(std::ostream& out, const char* name, const Items& items, const Print& print)
{
    out << ",\n  " << JsonText(name) << ": [";
    const char* separator = "\n    ";
    for (const auto& item : items)
    {
        out << separator;
        print(item);
        separator = ",\n    ";
    }
    out << "]";
}

void PrintElementAsJson(std::ostream& out, const SExpandedElement& element)
{
    out << "{\"depth\": " << element.depth << ", \"name\": " << JsonText(element.name)
        << ", \"attributes\": {";
    const char* separator = "";
    for (const auto& [name, value] : element.attributes)
    {
        out << separator << JsonText(name) << ": " << JsonText(value);
        separator = ", ";
    }
    out << "}}";
}

void PrintJson(const SCheckResult& result, const SOptions& options, std::ostream& out)
{
    out << "{\n  \"file\": " << JsonText(options.check.path) << ",\n  \"root\": " << JsonText(result.root)
        << ",\n  \"severity\": " << result.log.GetSeverity();
    PrintList(out, "messages", result.log.GetMessages(),
              [&out](const SCheckMessage& message)
              {
                  out << "{\"level\": " << JsonText(CMessageKind::GetName(message.kind))
                      << ", \"text\": " << JsonText(message.text) << ", \"file\": " << JsonText(message.file)
                      << ", \"line\": " << message.line << "}";
              });
    if (options.expand)
    {
        PrintList(out, "elements", result.elements,
                  [&out](const SExpandedElement& element) { PrintElementAsJson(out, element); });
    }
    if (options.dump)
    {
        PrintList(out, "objects", result.objects,
                  [&out](const Mirel::SkinEngine::SObjectDescription& object)
                  {
                      out << "{\"id\": " << JsonText(object.id) << ", \"kind\": " << JsonText(object.kind)
                          << ", \"writable\": " << (object.writable ? "true" : "false")
                          << ", \"value\": " << JsonText(object.value)
                          << ", \"info\": " << JsonText(object.info) << "}";
                  });
        std::vector<SExpandedElement> links;
        std::copy_if(result.elements.begin(), result.elements.end(), std::back_inserter(links), IsLink);
        PrintList(out, "links", links,
                  [&out](const SExpandedElement& link) { PrintElementAsJson(out, link); });
    }
    if (options.state)
    {
        out << ",\n  \"state\": " << JsonText(result.state);
    }
    out << "\n}\n";
}

int AnswerFormula(const SOptions& options, std::ostream& out)
{
    CCheckReport report;
    CheckFormula(options.formula.c_str(), options.x, options.y, report);
    if (options.json)
    {
        report.PrintJson(out);
    }
    else
    {
        report.Print(out);
    }
    return report.GetExitCode();
}

void AddOptions(CLI::App& app, SOptions& options, std::vector<std::string>& variables)
{
    app.add_option("FILE", options.check.path, "The skin or model file");
    app.add_flag("--expand", options.expand, "Show the elements as handlers receive them");
    app.add_flag("--dump", options.dump, "Show the objects, with kinds and values, and the links");
    app.add_flag("--state", options.state, "Show the state of a model as XML");
    app.add_flag("--only-marked", options.check.onlyMarked, "Build only what the model itself refers to");
    app.add_flag("--plugin", options.check.plugin,
                 "Give a model what the plug-in gives it: the objects dsp.*, midi.* and preset.name, and its "
                 "variables");
    app.add_option("--model", options.check.modelPath,
                   "The model that a skin shows, in the place of the product's own");
    app.add_option("--variable", variables, "A variable for the file, as NAME=VALUE")
        ->allow_extra_args(false);
    app.add_option("--formula", options.formula, "Evaluate a formula instead of reading a file");
    app.add_option("--x", options.x, "The value of the formula's variable x");
    app.add_option("--y", options.y, "The value of the formula's variable y");
    app.add_flag("--infos", options.infos, "Show infos as well");
    app.add_flag("--json", options.json, "Print all of this for programs");
    app.footer("Exit code: 0 for a clean file, 1 with warnings, 2 with errors.");
}

void TakeVariables(const std::vector<std::string>& texts, SCheckOptions& options)
{
    for (const std::string& text : texts)
    {
        const std::size_t equals = text.find('=');
        options.variables.emplace_back(text.substr(0, equals),
                                       equals == std::string::npos ? "" : text.substr(equals + 1));
    }
}

} // namespace

int RunProgram(int argc, const char* const* argv, std::ostream& out, std::ostream& errors, bool colours,
               const std::string& dataFolder)
{
    SOptions options;
    std::vector<std::string> variables;
    CLI::App app("Checks a skin or model file.", "skin-check");
    AddOptions(app, options, variables);
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return app.exit(error, out, errors) == 0 ? 0 : hasErrors;
    }
    if (app.count("--formula") > 0)
    {
        return AnswerFormula(options, out);
    }
    if (options.check.path.empty())
    {
        errors << "Name a file, or a formula with --formula; --help tells more.\n";
        return hasErrors;
    }
    TakeVariables(variables, options.check);
    options.check.dataFolder = dataFolder;
    if (options.check.modelPath.empty() && !dataFolder.empty())
    {
        options.check.modelPath = dataFolder + "/Model/model.model";
    }
    SCheckResult result;
    CheckSkin(options.check, result);
    if (options.json)
    {
        PrintJson(result, options, out);
    }
    else
    {
        PrintText(result, options, colours, out);
    }
    return result.log.GetSeverity();
}

} // namespace SkinCheck
