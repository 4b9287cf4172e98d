#include "Mirel/SkinEngine/Language/CSkinParser.h"

#include "Mirel/SkinEngine/Language/LanguageElements.h"
#include "Mirel/SkinEngine/Language/Quoted.h"
#include "Mirel/SkinEngine/Language/VariableSubstitution.h"
#include "Mirel/SkinEngine/Limits.h"

#include <utility>

namespace Mirel::SkinEngine
{

namespace
{

using Containers::CNamedAttributes;
using CoreUtilities::CMessageKind;

/// What the attributes cost, were they kept.
std::size_t Measure(const CNamedAttributes& attributes)
{
    std::size_t bytes = 0;
    attributes.Visit([&bytes](const std::string& name, const std::string& value)
                     { bytes += CLimits::attributeCharge + name.size() + value.size(); });
    return bytes;
}

/// The texts alone.
std::size_t MeasureText(const CNamedAttributes& attributes)
{
    std::size_t bytes = 0;
    attributes.Visit([&bytes](const std::string&, const std::string& value) { bytes += value.size(); });
    return bytes;
}

} // namespace

/// A call into the walk, from a file, a handler or a replayed template. What it leaves unfinished when it is
/// left by an exception goes with it.
class CSkinParser::CEntry
{
public:
    explicit CEntry(CSkinParser& parser_) : parser(&parser_), base(parser_.expansions.size())
    {
        ++parser->entryDepth;
    }
    CEntry(const CEntry&) = delete;
    CEntry& operator=(const CEntry&) = delete;
    ~CEntry()
    {
        --parser->entryDepth;
        while (parser->expansions.size() > base)
        {
            parser->expansions.pop_back();
        }
    }

    /// False once the parse is stopped.
    bool Check() const
    {
        return !parser->stopped && (parser->entryDepth <= CLimits::maxHandlerDepth ||
                                    parser->Stop("handlers call back more than " +
                                                 std::to_string(CLimits::maxHandlerDepth) + " deep"));
    }

    bool Finish(bool result) const
    {
        parser->RunExpansions(base);
        return result && !parser->stopped;
    }

private:
    CSkinParser* parser;
    std::size_t base;
};

CSkinParser::CSkinParser(CoreUtilities::IMessageLog& log_)
    : log(log_),
      definitions(log),
      templates(log, CLanguageElements::templateElement, CLanguageElements::templateContent),
      repeats(log, CLanguageElements::repeat, "")
{
    RegisterLanguage();
}

CSkinParser::~CSkinParser() = default;

void CSkinParser::ResetHandlers()
{
    startHandlers.clear();
    endHandlers.clear();
    RegisterLanguage();
}

void CSkinParser::SetRootElement(const char* name)
{
    rootElement = name == nullptr ? "" : name;
}

void CSkinParser::RegisterStartHandler(const char* name, CStartCommand* command)
{
    startHandlers.insert_or_assign(name, std::unique_ptr<CStartCommand>(command));
}

void CSkinParser::RegisterEndHandler(const char* name, CEndCommand* command)
{
    endHandlers.insert_or_assign(name, std::unique_ptr<CEndCommand>(command));
}

void CSkinParser::SetVariable(const char* name, const char* value)
{
    variables.Set(name, value);
}

void CSkinParser::SetElementListener(IElementListener* listener)
{
    listened.SetListener(listener);
}

const char* CSkinParser::GetCurrentElementName() const
{
    return currentElementName.c_str();
}

bool CSkinParser::StartElement(const char* name, CNamedAttributes& attributes)
{
    const CEntry entry(*this);
    return entry.Check() && entry.Finish(ProcessStart(name, attributes));
}

bool CSkinParser::EndElement(const char* name)
{
    const CEntry entry(*this);
    return entry.Check() && entry.Finish(ProcessEnd(name));
}

/// The first of these that applies decides what becomes of an element: what records it, what it must not be,
/// what it stands for.
bool CSkinParser::ProcessStart(const char* name, CNamedAttributes& attributes)
{
    const char* const firstName = name;
    for (int links = 0;; ++links)
    {
        if (!Charge(CLimits::elementCharge + Measure(attributes)))
        {
            return false;
        }
        if (recordingRepeat)
        {
            repeats.StartElement(name, attributes);
            return true;
        }
        if (inDefine)
        {
            return StartDefinition(name, attributes);
        }
        if (recordingTemplate)
        {
            templates.StartElement(name, attributes);
            return true;
        }
        if (inUndefine)
        {
            EnterElement();
            listened.StartRefused(name);
            definitions.Undefine(name);
            return true;
        }
        if (!CheckRootElement(name))
        {
            listened.StartRefused(name);
            return false;
        }
        const char* baseType = definitions.TranslateStart(name, attributes);
        if (baseType == nullptr)
        {
            return StartResolved(name, attributes) || links > 0;
        }
        if (links == CLimits::maxDefinitionChain)
        {
            return Fail(Quoted(firstName) + ": definitions lead on through more than " +
                        std::to_string(CLimits::maxDefinitionChain) + " names");
        }
        name = baseType;
    }
}

bool CSkinParser::StartDefinition(const char* name, CNamedAttributes& attributes)
{
    EnterElement();
    listened.StartRefused(name);
    if (startHandlers.contains(name))
    {
        return Fail(std::string(name) + ": you cannot redefine reserved elements. "
                                        "Please choose another name for your definition");
    }
    if (!SubstituteVariables(variables, attributes))
    {
        RefuseText(name);
    }
    definitions.Define(name, attributes);
    return true;
}

bool CSkinParser::CheckRootElement(const char* name)
{
    if (rootElement.empty())
    {
        return true;
    }
    const bool isFirst = !std::exchange(firstElementSeen, true);
    const bool isRoot = rootElement == name;
    if (isFirst && !isRoot)
    {
        return Fail("Invalid file: root element must be '" + rootElement + "'");
    }
    if (!isFirst && isRoot)
    {
        return Fail("Invalid file: '" + rootElement + "' is reserved for root element");
    }
    return true;
}

bool CSkinParser::StartResolved(const char* name, CNamedAttributes& attributes)
{
    const std::size_t before = MeasureText(attributes);
    if (!SubstituteVariables(variables, attributes))
    {
        RefuseText(name);
    }
    const std::size_t after = MeasureText(attributes);
    if (after > before && !Charge(after - before))
    {
        return false;
    }
    if (CTemplateRootNode* root = templates.GetTemplatesMap().Find(name))
    {
        return StartUse(name, *root, attributes);
    }
    if (recording != nullptr && recordingDepth >= 0)
    {
        return StartRecorded(name, attributes);
    }
    return StartHandled(name, attributes);
}

bool CSkinParser::StartUse(const char* name, CTemplateRootNode& root, const CNamedAttributes& attributes)
{
    if (root.GetInstanceCount() > CLimits::maxTemplateInstances)
    {
        Post(CMessageKind::Warning, "Recursion detected: '" + std::string(name) +
                                        " has been recursively instantiated more than 256 times.");
        openUses.push_back(nullptr);
        return Conclude(false);
    }
    EnterElement();
    if (!Charge(Measure(root.GetAttributes())))
    {
        return false;
    }
    CExpansion expansion;
    expansion.instance = root.Begin(attributes);
    expansion.running.emplace(root);
    return PushExpansion(std::move(expansion));
}

bool CSkinParser::StartRecorded(const char* name, const CNamedAttributes& attributes)
{
    ++recordingDepth;
    if (recordingDepth > CLimits::maxElementDepth)
    {
        return Stop("elements are nested deeper than " + std::to_string(CLimits::maxElementDepth));
    }
    recording->StartElement(name, attributes);
    return true;
}

bool CSkinParser::StartHandled(const char* name, const CNamedAttributes& attributes)
{
    EnterElement();
    listened.Start(name, attributes);
    const auto handler = startHandlers.find(name);
    if (handler != startHandlers.end())
    {
        return Conclude(handler->second->Execute(attributes));
    }
    Post(CMessageKind::Info, "Skipping '" + std::string(name) + "': unknown tag");
    return true;
}

bool CSkinParser::ProcessEnd(const char* name)
{
    for (int links = 0;; ++links)
    {
        if (recordingRepeat && repeats.TakesEnd(name))
        {
            repeats.EndElement(name);
            return true;
        }
        if (recordingTemplate && templates.TakesEnd(name))
        {
            templates.EndElement(name);
            return true;
        }
        const bool defining = inDefine || inUndefine;
        const char* baseType = defining ? nullptr : definitions.TranslateEnd(name);
        if (baseType != nullptr)
        {
            if (links == CLimits::maxDefinitionChain)
            {
                return false;
            }
            name = baseType;
            continue;
        }
        // The children of DEFINE and UNDEFINE have opened no use, whatever their names.
        if (!defining && templates.GetTemplatesMap().Find(name) != nullptr)
        {
            ContinueUse();
            return true;
        }
        if (recording != nullptr && recordingDepth > 0)
        {
            --recordingDepth;
            recording->EndElement(name);
            return true;
        }
        return EndHandled(name) || links > 0;
    }
}

bool CSkinParser::EndHandled(const char* name)
{
    const bool isListened = listened.IsInnermost(name);
    const std::size_t before = expansions.size();
    const auto handler = endHandlers.find(name);
    const bool result = handler == endHandlers.end() || handler->second->Execute();
    if (isListened)
    {
        listened.End();
    }
    if (expansions.size() > before)
    {
        expansions[before].closesElement = true;
    }
    else
    {
        LeaveElement();
    }
    return Conclude(result);
}

void CSkinParser::RefuseText(const char* name)
{
    Fail(Quoted(name) + ": attributes become too long when variables are put in");
}

bool CSkinParser::Conclude(bool result)
{
    success = success && result;
    return result;
}

void CSkinParser::EnterElement()
{
    ++depth;
    if (depth > CLimits::maxElementDepth)
    {
        Stop("elements are nested deeper than " + std::to_string(CLimits::maxElementDepth));
    }
}

void CSkinParser::LeaveElement()
{
    --depth;
    DropExpiredVariables();
}

void CSkinParser::DropExpiredVariables()
{
    while (!localVariables.empty() && localVariables.back().depth > depth)
    {
        variables.Remove(localVariables.back().name.c_str());
        localVariables.pop_back();
    }
}

} // namespace Mirel::SkinEngine
