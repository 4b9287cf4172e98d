// The dictionary of a model beside a plain hash map, states of many parameters beside a copy of their
// numbers, and a large model built from a file beside its objects and links made by hand.

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/CCaptureParamLink.h"
#include "Mirel/Runtime/CDynamicObject.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/CDynamicObjectsDictionary.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/CSkinModelFactory.h"
#include "Support/CTemporaryFolder.h"
#include "Support/Contest.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

using namespace Mirel;
using namespace Mirel::DataModel::Objects;
using namespace Mirel::SkinEngine;

namespace
{

constexpr int objectCount = 10000;
constexpr int linkCount = 30000;

const std::vector<std::string>& Ids()
{
    static const std::vector<std::string> ids = []
    {
        std::vector<std::string> made;
        for (int i = 0; i < objectCount; ++i)
        {
            made.push_back("channel[" + std::to_string(i % 100) + "].group.param" + std::to_string(i));
        }
        return made;
    }();
    return ids;
}

using CPlainMap = std::unordered_map<std::string, Runtime::IDynamicObject*>;

void FillPlainMap(CPlainMap& map, Runtime::IDynamicObject& object)
{
    for (const std::string& id : Ids())
    {
        map.emplace(id, &object);
    }
}

void FillDictionary(CDynamicObjectsDictionary& dictionary, Runtime::IDynamicObject& object)
{
    for (const std::string& id : Ids())
    {
        dictionary.Add(id.c_str(), &object, false);
    }
}

void Add(benchmark::State& state)
{
    Runtime::CDynamicObject object;
    Benchmarks::CContest contest(state, objectCount);
    contest.Add("dictionary",
                [&]
                {
                    CDynamicObjectsDictionary dictionary;
                    FillDictionary(dictionary, object);
                    benchmark::DoNotOptimize(dictionary.GetCount());
                });
    contest.Add("unordered_map",
                [&]
                {
                    CPlainMap map;
                    FillPlainMap(map, object);
                    benchmark::DoNotOptimize(map.size());
                });
    contest.Run();
}

void Find(benchmark::State& state)
{
    Runtime::CDynamicObject object;
    CDynamicObjectsDictionary dictionary;
    CPlainMap map;
    FillDictionary(dictionary, object);
    FillPlainMap(map, object);
    Benchmarks::CContest contest(state, objectCount);
    contest.Add("dictionary",
                [&]
                {
                    for (const std::string& id : Ids())
                    {
                        benchmark::DoNotOptimize(dictionary.Find(id.c_str()));
                    }
                });
    contest.Add("unordered_map",
                [&]
                {
                    for (const std::string& id : Ids())
                    {
                        benchmark::DoNotOptimize(map.find(id));
                    }
                });
    contest.Run();
}

void AddPersistentParams(CSkinModel& model)
{
    const CParamInfo info(2, 0.0f, 1.0f, 0.0f, "", "", "");
    for (const std::string& id : Ids())
    {
        model.AddParam(id.c_str(), new CCaptureParam(info), objectItself, true);
        model.MakePersistent(id.c_str(), true);
    }
}

/// The values by name, as a plain map would keep them.
void TakeState(benchmark::State& state)
{
    CSkinModel model;
    AddPersistentParams(model);
    std::unordered_map<std::string, CCaptureParam> plain;
    for (const std::string& id : Ids())
    {
        plain.try_emplace(id);
    }
    Benchmarks::CContest contest(state, objectCount);
    contest.Add("snapshot",
                [&]
                {
                    CSkinModelState taken;
                    model.TakeState(taken);
                    benchmark::DoNotOptimize(taken.params.size());
                });
    contest.Add("names and numbers copied",
                [&]
                {
                    std::vector<std::pair<std::string, float>> taken;
                    for (const auto& [id, param] : plain)
                    {
                        taken.emplace_back(id, param.GetValue());
                    }
                    benchmark::DoNotOptimize(taken.size());
                });
    contest.Run();
}

void RestoreState(benchmark::State& state)
{
    CSkinModel model;
    AddPersistentParams(model);
    CSkinModelState taken;
    model.TakeState(taken);
    std::unordered_map<std::string, CCaptureParam> plain;
    for (const std::string& id : Ids())
    {
        plain.try_emplace(id);
    }
    float value = 0.0f;
    Benchmarks::CContest contest(state, objectCount);
    contest.Add("restored",
                [&]
                {
                    value = value < 0.5f ? 1.0f : 0.0f;
                    for (auto& param : taken.params)
                    {
                        param.value = value;
                    }
                    model.RestoreState(taken);
                });
    contest.Add("found in an unordered_map and set",
                [&]
                {
                    value = value < 0.5f ? 1.0f : 0.0f;
                    for (const auto& param : taken.params)
                    {
                        plain.find(param.name)->second.SetValue(value);
                    }
                });
    contest.Run();
}

/// Through a data object in memory and back, as a host's chunk goes.
void SaveAndLoad(benchmark::State& state)
{
    CSkinModel model;
    AddPersistentParams(model);
    Benchmarks::CContest contest(state, objectCount);
    contest.Add("saved and loaded",
                [&]
                {
                    Serialization::CMemDataObject saved;
                    model.Serialize(saved);
                    model.Deserialize(saved);
                });
    contest.Add("snapshot taken and restored",
                [&]
                {
                    CSkinModelState taken;
                    model.TakeState(taken);
                    model.RestoreState(taken);
                });
    contest.Run();
}

/// Which parameters a link joins: short chains, so that what runs is the building.
int SourceOf(int link)
{
    return link * 7 % objectCount;
}

int TargetOf(int link)
{
    return (link * 7 + 1 + link / objectCount) % objectCount;
}

void BuildDirectly()
{
    CSkinModel model;
    const CParamInfo info(2, 0.0f, 1.0f, 0.0f, "", "", "");
    std::vector<CCaptureParam*> params;
    for (const std::string& id : Ids())
    {
        params.push_back(new CCaptureParam(info));
        model.AddParam(id.c_str(), params.back(), objectItself, true);
    }
    for (int i = 0; i < linkCount; ++i)
    {
        auto* link = new CCaptureParamLink;
        link->SetOnModifyOnly(true);
        link->SetSource(params[static_cast<std::size_t>(SourceOf(i))]);
        link->SetTarget(params[static_cast<std::size_t>(TargetOf(i))]);
        link->Enable(true);
        model.AddLink(link);
    }
    benchmark::DoNotOptimize(model.GetObjects().GetCount());
}

std::string ModelText()
{
    std::string text = "<MODEL>\n";
    for (const std::string& id : Ids())
    {
        text += "<PARAM id=\"" + id + "\" min=\"0\" max=\"1\"/>\n";
    }
    for (int i = 0; i < linkCount; ++i)
    {
        text += "<PARAM_LINK from=\"" + Ids()[static_cast<std::size_t>(SourceOf(i))] + "\" to=\"" +
                Ids()[static_cast<std::size_t>(TargetOf(i))] + "\" trigger_condition=\"modify\"/>\n";
    }
    return text + "</MODEL>\n";
}

void Build(benchmark::State& state)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("large.model", ModelText());
    const std::string path = folder.GetPath("large.model");
    Benchmarks::CContest contest(state, objectCount + linkCount);
    contest.Add("from a file",
                [&]
                {
                    CoreUtilities::CMemMessageLog log;
                    CSkinModel model;
                    CSkinParser parser(log);
                    CSkinModelFactory factory(parser, log, model);
                    if (!factory.Parse(path.c_str(), true))
                    {
                        state.SkipWithError(log.GetMessages().back().text.c_str());
                    }
                    benchmark::DoNotOptimize(model.GetObjects().GetCount());
                });
    contest.Add("by hand", [] { BuildDirectly(); });
    contest.Run();
}

} // namespace

BENCHMARK(Add)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Find)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(TakeState)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(RestoreState)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(SaveAndLoad)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Build)->UseManualTime()->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
