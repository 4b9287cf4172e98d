// Model elements in any order, with any of their attributes, from identifiers, numbers and formulas that fit
// together often; then counts, values and ticks in any order. The bytes choose.

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/CSkinModelFactory.h"
#include "Mirel/SkinEngine/Model/CSkinModelState.h"
#include "Mirel/SkinEngine/Model/CollectionLimits.h"
#include "Mirel/SkinEngine/Model/DescribeModel.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "Require.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <string>

namespace
{

using namespace Mirel::SkinEngine;
using namespace Mirel::DataModel::Objects;

/// Ticks every timer at once.
class CTimers : public Mirel::System::ITimerProvider
{
public:
    void AddTimer(int periodMs, Mirel::Core::ICommand* command) override { timers[command] = periodMs; }

    void RemoveTimer(Mirel::Core::ICommand*& command, bool destroyCommand) override
    {
        timers.erase(command);
        Mirel::System::DestroyTimerCommand(command, destroyCommand);
    }

    void Tick()
    {
        const auto ticking = timers;
        for (const auto& [command, period] : ticking)
        {
            if (timers.contains(command))
            {
                command->Execute();
            }
        }
    }

private:
    std::map<Mirel::Core::ICommand*, int> timers;
};

class CChoices
{
public:
    CChoices(const std::uint8_t* data_, std::size_t size_) : data(data_), end(data_ + size_) {}

    bool IsEmpty() const { return data == end; }
    unsigned Next() { return data == end ? 0U : *data++; }

    template <std::size_t count>
    const char* Next(const char* const (&texts)[count])
    {
        return texts[Next() % count];
    }

private:
    const std::uint8_t* data;
    const std::uint8_t* end;
};

constexpr const char* names[] = {
    "id",           "from",          "to",         "id1",          "id2",
    "param_id",     "curve_id",      "surface_id", "x_param_id",   "y_param_id",
    "formula",      "variable",      "type",       "x_type",       "y_type",
    "enum_values",  "x_enum_values", "min",        "max",          "default",
    "x_min",        "x_max",         "y_max",      "y_default",    "trigger_condition",
    "mode",         "reverse",       "enabled",    "normalized",   "response_curve",
    "mux_function", "separator",     "constraint", "count",        "min_count",
    "max_count",    "collection_id", "item_name",  "duration_ms",  "refresh_time_ms",
    "paused",       "value_format",  "content",    "value_suffix", "significant_digits",
    "trigger_min",  "trigger_max",   "persistent", "exposed",      "param_ids",
    "object_ids",   "function",      "arg_url"};

constexpr const char* ids[] = {"a",        "b",       "c",       "d",         "e",           "a;b",
                               "c;d;a",    "c[0].v",  "c[1].v",  "d[0].v",    "$i$.v",       "$j$.v",
                               "$i$.d",    "$j$.d",   "c.count", "d.count",   "$i$.d.count", "a.enabled",
                               "b.paused", "$c_i$.v", "alive",   "a.reverse", "e.mode",      "c[0].d",
                               "f",        "",        "'u'",     "a.min"};

constexpr const char* values[] = {
    "0",          "1",           "2",       "-1",      "0.5",     "3",      "7",         "100",
    "2147483647", "1e39",        "nan",     "true",    "false",   "modify", "all",       "diff",
    "exp2",       "square",      "mean",    "max",     "-min",    "<",      "+",         "/",
    "integer",    "enumeration", "boolean", "x;y;z",   "a+b",     "a(x)*2", "b(x)+b(x)", "c(x,y)",
    "x",          "i",           "j",       "OpenUrl", "{value}", ".3",     "x*x",       "1-x"};

constexpr const char* countIds[] = {"c.count", "d.count", "c[0].d.count", "c[1].d.count", "f.count"};

const char* ChooseElement(CChoices& choices)
{
    const unsigned choice = choices.Next();
    if (choice % 5 == 0)
    {
        return choice % 2 == 0 ? "COLLECTION" : "FOREACH";
    }
    return modelElements[choice % std::size(modelElements)].name;
}

Mirel::Containers::CNamedAttributes ChooseAttributes(CChoices& choices)
{
    Mirel::Containers::CNamedAttributes attributes;
    attributes.Set("id", choices.Next(ids));
    for (unsigned left = choices.Next() % 8; left > 0; --left)
    {
        const char* name = choices.Next(names);
        attributes.Set(name, choices.Next() % 2 == 0 ? choices.Next(ids) : choices.Next(values));
    }
    return attributes;
}

void Build(CSkinParser& parser, CChoices& choices, int depth)
{
    for (unsigned left = choices.Next() % 24; left > 0 && !choices.IsEmpty(); --left)
    {
        const std::string element = ChooseElement(choices);
        auto attributes = ChooseAttributes(choices);
        parser.StartElement(element.c_str(), attributes);
        if ((element == "COLLECTION" || element == "FOREACH") && depth < 3)
        {
            Build(parser, choices, depth + 1);
        }
        parser.EndElement(element.c_str());
    }
}

void Use(CSkinModel& model, CTimers& timers, CChoices& choices)
{
    CSkinModelState state;
    while (!choices.IsEmpty())
    {
        switch (choices.Next() % 5)
        {
        case 0:
            timers.Tick();
            break;
        case 1:
            if (auto* count = FindObject<ICaptureParam>(model.GetObjects(), choices.Next(countIds)))
            {
                count->SetValue(static_cast<float>(choices.Next() % 6));
            }
            break;
        case 2:
            if (auto* param = FindObject<ICaptureParam>(model.GetObjects(), choices.Next(ids)))
            {
                param->SetValue(static_cast<float>(choices.Next() % 16) / 4);
            }
            break;
        case 3:
            model.TakeState(state);
            break;
        default:
            model.RestoreState(state);
            break;
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    CChoices choices(data, size);
    CTimers timers;
    Mirel::CoreUtilities::CMemMessageLog log;
    CSkinModel model(&log);
    {
        CSkinParser parser(log);
        CSkinModelFactory factory(parser, log, model, {&timers, nullptr, nullptr});
        model.GetExposure().Use(choices.Next() % 2 == 0 ? "*" : "c*");
        factory.StartModel({});
        Build(parser, choices, 0);
        factory.EndModel();
    }
    model.GetObjects().SetLog(nullptr);
    Use(model, timers, choices);
    Fuzz::Require(DescribeObjects(model).size() == static_cast<std::size_t>(model.GetObjects().GetCount()));
    model.Clear();
    Fuzz::Require(model.GetObjects().GetCount() == 0);
    return 0;
}
