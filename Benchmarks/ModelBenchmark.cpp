// Models from files: many objects and links, and items of collections that come and go.

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/CSkinModelFactory.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "Support/CTemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <sstream>
#include <string>

namespace
{

using namespace Mirel::SkinEngine;

constexpr int objectCount = 10000;
constexpr int linksPerObject = 3;

struct SModel
{
    Mirel::CoreUtilities::CMemMessageLog log;
    CSkinModel model{&log};
    CSkinParser parser{log};
    CSkinModelFactory factory{parser, log, model};
};

/// A chain of parameters, each linked to the three behind it.
std::string MakeLargeModel()
{
    std::ostringstream text;
    text << "<MODEL>";
    for (int i = 0; i < objectCount; ++i)
    {
        text << "<PARAM id='p" << i << "' max='10' default='1' name='P'/>";
    }
    for (int i = 0; i < objectCount * linksPerObject; ++i)
    {
        text << "<PARAM_LINK from='p" << i % objectCount << "' to='p"
             << (i + 1 + i / objectCount) % objectCount << "'/>";
    }
    text << "</MODEL>";
    return text.str();
}

void BM_ReadFileOfLargeModel(benchmark::State& state)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("large.model", MakeLargeModel());
    const std::string path = folder.GetPath("large.model");
    for (auto _ : state)
    {
        Mirel::CoreUtilities::CMemMessageLog log;
        CSkinParser parser(log);
        parser.ParseFile(path.c_str());
    }
    state.SetItemsProcessed(state.iterations() * objectCount * (1 + linksPerObject));
}
BENCHMARK(BM_ReadFileOfLargeModel)->Unit(benchmark::kMillisecond);

void BM_BuildLargeModel(benchmark::State& state)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("large.model", MakeLargeModel());
    const std::string path = folder.GetPath("large.model");
    for (auto _ : state)
    {
        SModel built;
        if (!built.factory.Parse(path.c_str(), true))
        {
            state.SkipWithError("the model has errors");
        }
    }
    state.SetItemsProcessed(state.iterations() * objectCount * (1 + linksPerObject));
}
BENCHMARK(BM_BuildLargeModel)->Unit(benchmark::kMillisecond);

void BM_GrowAndShrinkCollection(benchmark::State& state)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("items.model", "<MODEL><COLLECTION id='c'><PARAM id='$item_id$.v' max='9'/>"
                                "<PARAM id='$item_id$.w' max='9'/>"
                                "<PARAM_LINK from='$item_id$.v' to='$item_id$.w'/></COLLECTION>"
                                "<EXPOSED_OBJECTS object_ids='c.count'/></MODEL>");
    SModel built;
    built.factory.Parse(folder.GetPath("items.model").c_str(), true);
    auto* count = FindObject<Mirel::DataModel::Objects::ICaptureParam>(built.model.GetObjects(), "c.count");
    const auto items = static_cast<int>(state.range(0));
    for (auto _ : state)
    {
        count->SetValue(static_cast<float>(items));
        count->SetValue(0);
    }
    state.SetItemsProcessed(state.iterations() * items);
}
BENCHMARK(BM_GrowAndShrinkCollection)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
