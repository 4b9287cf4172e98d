// The elements that the parser itself understands.

#include "Mirel/Core/Numeric.h"
#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Language/FormulaText.h"
#include "Mirel/SkinEngine/Language/IScriptEngine.h"
#include "Mirel/SkinEngine/Language/LanguageElements.h"
#include "Mirel/SkinEngine/Language/Quoted.h"
#include "Mirel/SkinEngine/Limits.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;
using CoreUtilities::CMessageKind;

namespace
{

constexpr const char* repeatTemplateId = "RepeatTemplate";
constexpr const char* recordedContentId = "RecordedContent";

std::string GetText(const CNamedAttributes& attributes, const char* name, const char* missing)
{
    const char* value = attributes.Get(name);
    return value == nullptr ? missing : value;
}

std::string InvalidFormula(const std::string& where, const char* formula)
{
    return where + ":" + Quoted(formula) + " is an invalid formula.";
}

CNamedAttributes WithId(const char* id)
{
    CNamedAttributes attributes;
    attributes.Set("id", id);
    return attributes;
}

/// The whole text as an integer in base 10; the empty text is 0.
bool ReadWholeInteger(const char* text, int& value)
{
    char* end = nullptr;
    const long number = std::strtol(text, &end, 10);
    value = Core::SaturateToInt32(number);
    return *end == '\0';
}

} // namespace

bool IsLanguageElement(const char* name)
{
    using E = CLanguageElements;
    constexpr std::array names = {E::include,  E::includeOnce,   E::define, E::undefine, E::templateElement,
                                  E::variable, E::localVariable, E::repeat, E::script};
    return std::any_of(names.begin(), names.end(),
                       [name](const char* known) { return std::strcmp(name, known) == 0; });
}

void CSkinParser::RegisterLanguage()
{
    using E = CLanguageElements;
    using CStart = Core::TArgReturnCommand<CSkinParser, bool, const CNamedAttributes&>;
    using CEnd = Core::TReturnCommand<CSkinParser, bool>;
    const auto start = [this](const char* name, CStart::Method method)
    { RegisterStartHandler(name, new CStart(this, method)); };
    const auto end = [this](const char* name, CEnd::Method method)
    { RegisterEndHandler(name, new CEnd(this, method)); };

    start(E::include, &CSkinParser::StartInclude);
    start(E::includeOnce, &CSkinParser::StartIncludeOnce);
    start(E::define, &CSkinParser::StartDefine);
    end(E::define, &CSkinParser::EndDefine);
    start(E::undefine, &CSkinParser::StartUndefine);
    end(E::undefine, &CSkinParser::EndUndefine);
    start(E::templateElement, &CSkinParser::StartTemplate);
    end(E::templateElement, &CSkinParser::EndTemplate);
    start(E::variable, &CSkinParser::StartVariable);
    start(E::localVariable, &CSkinParser::StartLocalVariable);
    start(E::repeat, &CSkinParser::StartRepeat);
    end(E::repeat, &CSkinParser::EndRepeat);
    start(E::script, &CSkinParser::StartScript);
}

bool CSkinParser::StartInclude(const CNamedAttributes& attributes)
{
    return Include(attributes, false);
}

bool CSkinParser::StartIncludeOnce(const CNamedAttributes& attributes)
{
    return Include(attributes, true);
}

bool CSkinParser::StartDefine(const CNamedAttributes& /*attributes*/)
{
    inDefine = true;
    return true;
}

bool CSkinParser::EndDefine()
{
    inDefine = false;
    return true;
}

bool CSkinParser::StartUndefine(const CNamedAttributes& /*attributes*/)
{
    inUndefine = true;
    return true;
}

bool CSkinParser::EndUndefine()
{
    inUndefine = false;
    return true;
}

bool CSkinParser::StartTemplate(const CNamedAttributes& attributes)
{
    recordingTemplate = true;
    return templates.StartTemplate(attributes);
}

bool CSkinParser::EndTemplate()
{
    templates.EndTemplate();
    recordingTemplate = false;
    return true;
}

bool CSkinParser::StartVariable(const CNamedAttributes& attributes)
{
    const std::string id = GetText(attributes, "id", "");
    if (id.empty())
    {
        Post(CMessageKind::Error, "mandatory id for VARIABLE attribute empty or missing");
        return false;
    }
    if (variables.Get(id.c_str()) != nullptr && GetText(attributes, "override", "") != "true")
    {
        Post(CMessageKind::Warning,
             id + " variable already in use. New definition will overwrite previous one.");
    }
    const char* formula = attributes.Get("formula");
    if (formula == nullptr)
    {
        variables.Assign(id, GetText(attributes, "value", ""));
        return true;
    }
    const std::unique_ptr<Math::IConstant> compiled = Compile(formula);
    if (compiled == nullptr)
    {
        Post(CMessageKind::Error, InvalidFormula(id, formula));
        return false;
    }
    variables.Assign(id, FormatFormulaValue((*compiled)()));
    return true;
}

bool CSkinParser::StartLocalVariable(const CNamedAttributes& attributes)
{
    const std::string id = GetText(attributes, "id", "");
    const bool existed = variables.Get(id.c_str()) != nullptr;
    const bool result = StartVariable(attributes);
    if (!existed && !id.empty())
    {
        localVariables.push_back({depth - 1, id});
    }
    return result;
}

bool CSkinParser::StartRepeat(const CNamedAttributes& attributes)
{
    repeat = {};
    const bool countRead = ReadInteger(attributes, "count", repeat.count);
    const bool startRead = ReadInteger(attributes, "start", repeat.start);
    repeat.indexList = GetText(attributes, "index_list", "");
    if (attributes.Get("index_list") != nullptr && attributes.Get("count") != nullptr)
    {
        Post(CMessageKind::Warning, "REPEAT: index_list attribute overrides count attribute");
    }
    recordingRepeat = true;
    repeats.StartTemplate(WithId(repeatTemplateId));
    repeat.indexName = GetText(attributes, "index_name", "index");
    return countRead && startRead;
}

/// Leaves the replay to the walk, which runs it before anything else.
bool CSkinParser::EndRepeat()
{
    repeats.EndTemplate();
    recordingRepeat = false;
    CExpansion expansion;
    expansion.kind = CExpansion::EKind::Repeat;
    expansion.body.reset(repeats.GetTemplatesMap().Detach(repeatTemplateId));
    expansion.passes = CRepeatPasses(std::exchange(repeat, {}));
    repeats.Clear();
    return expansion.body == nullptr || PushExpansion(std::move(expansion));
}

bool CSkinParser::StartScript(const CNamedAttributes& attributes)
{
    const char* source = attributes.Get("src");
    if (source == nullptr)
    {
        Post(CMessageKind::Error, "SCRIPT: missing mandatory src attribute.");
        return false;
    }
    IScriptEngine* engine = GetScriptEngine();
    if (engine == nullptr)
    {
        Post(CMessageKind::Warning, "SCRIPT: current engine does not supports scripts.");
        return true;
    }
    const std::string path = paths.Resolve(state.GetRootFilePath(), source);
    return CheckInside(path) && engine->Run(path.c_str(), log);
}

std::unique_ptr<Math::IConstant> CSkinParser::Compile(const char* formula)
{
    return Charge(CLimits::formulaCharge + CLimits::formulaByteCharge * std::strlen(formula))
               ? CompileConstant(formula)
               : nullptr;
}

bool CSkinParser::ReadInteger(const CNamedAttributes& attributes, const char* name, int& value)
{
    value = 0;
    const char* text = attributes.Get(name);
    if (text == nullptr || ReadWholeInteger(text, value))
    {
        return true;
    }
    value = 0;
    const std::unique_ptr<Math::IConstant> compiled = Compile(text);
    if (compiled == nullptr)
    {
        Post(CMessageKind::Error, InvalidFormula("Line " + std::to_string(GetCurrentLine()), text));
        return false;
    }
    value = Core::TruncateToInt32(static_cast<double>((*compiled)()));
    return true;
}

void CSkinParser::StartRecording(void* context)
{
    if (recording != nullptr)
    {
        return;
    }
    recording = std::make_unique<CTemplateParser>(log, "", "");
    recording->StartTemplate(WithId(recordedContentId));
    recordingContext = context;
    recordingDepth = 0;
}

IParsedTemplate* CSkinParser::StopRecording(void*& context)
{
    if (recording == nullptr)
    {
        return nullptr;
    }
    recording->EndTemplate();
    CTemplateRootNode* recorded = recording->GetTemplatesMap().Detach(recordedContentId);
    recording.reset();
    recordingDepth = 0;
    context = std::exchange(recordingContext, nullptr);
    return recorded;
}

} // namespace Mirel::SkinEngine
