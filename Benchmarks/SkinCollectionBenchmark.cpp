// A collection of a skin that grows from nothing to a thousand items and back, beside the same widgets
// written out by a REPEAT, whose file is built and closed, and beside the same widgets made and destroyed by
// hand.

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/GUI/CLightWidgetAdapter.h"
#include "Mirel/GUI/CLightWidgetLayoutCell.h"
#include "Mirel/GUI/CTextLightWidget.h"
#include "Mirel/GUI/CWidgetLayoutCell.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "Mirel/SkinEngine/UI/CGUISkinData.h"
#include "Mirel/SkinEngine/UI/CSkinUIElementsHandler.h"
#include "Support/CTemporaryFolder.h"
#include "Support/Contest.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

using namespace Mirel;
using namespace Mirel::SkinEngine;

namespace
{

constexpr int items = 1000;

/// A skin in a light tree that no window shows.
class CSkin : private ISkinRoot
{
public:
    explicit CSkin(const std::string& body)
    {
        folder.Write("skin.xml", "<SKIN>" + body + "</SKIN>");
        window.Show(true);
        Build();
    }

    /// What the file holds.
    void Build()
    {
        CSkinParser parser(log);
        CSkinUIElementsHandler handler(parser, log, data, services, *this);
        built = handler.Parse(folder.GetPath("skin.xml").c_str(), true);
    }

    void Close() { data.Clear(); }
    bool IsGood() const { return built && !log.HasMessages(CoreUtilities::CMessageKind::Error); }
    int GetWidgetCount() const { return light.GetChildCount(); }

    void SetCount(int count)
    {
        auto* param = FindObject<DataModel::Objects::ICaptureParam>(model.GetObjects(), "c.count");
        param->SetValue(static_cast<float>(count));
    }

private:
    SSkinPlace OpenRoot(SSkinRootAttributes) override
    {
        light.GetCell().SetFixedSize({400, 300});
        return {&light, &window, &light.GetCell()};
    }

    Tests::CTemporaryFolder folder;
    CoreUtilities::CMemMessageLog log;
    CSkinModel model{&log};
    Graphics::CGraphicResourcesManager images;
    Graphics::CFontManager fonts{Graphics::GetFontsFolder(DATA_FOLDER)};
    SSkinUIServices services{images, fonts};
    GUI::CWidget window;
    GUI::CLightWidget light;
    GUI::CLightWidgetAdapter adapter{&light, false};
    CGUISkinData data{model};
    bool built = false;
};

/// Two texts in a row, as each item has them.
struct CItem
{
    CItem(GUI::CLightWidget& parent, Layout::CGroupLayoutCell& group, const std::string& name)
    {
        group.AddCell(&row, {}, false);
        for (GUI::CTextLightWidget* text : {&first, &second})
        {
            text->SetText(name.c_str());
            text->SetSize({40, 9});
            parent.AddChild(text);
            row.AddCell(&text->GetCell(), {}, false);
        }
    }

    Layout::CGroupLayoutCell row;
    GUI::CTextLightWidget first;
    GUI::CTextLightWidget second;
};

void MakeByHand()
{
    GUI::CLightWidget light;
    Layout::CGroupLayoutCell& group = light.GetCell();
    std::vector<std::unique_ptr<CItem>> made;
    for (int i = 0; i < items; ++i)
    {
        made.push_back(std::make_unique<CItem>(light, group, "c[" + std::to_string(i) + "]"));
    }
    group.SetAutoUpdate(true);
    benchmark::DoNotOptimize(light.GetChildCount());
    group.SetAutoUpdate(false);
}

std::string Item(const std::string& name)
{
    return "<ROW><TEXT value='" + name + "' width='40' height='9'/><TEXT value='" + name +
           "' width='40' height='9'/></ROW>";
}

void GrowAndShrink(benchmark::State& state)
{
    CSkin collection("<COLUMN><COLLECTION id='c'>" + Item("$item_id$") +
                     "</COLLECTION><PARAM_TEXT param_id='c.count'/></COLUMN>");
    CSkin repeat("<COLUMN><REPEAT count='" + std::to_string(items) + "' index_name='i'>" + Item("c[$i$]") +
                 "</REPEAT></COLUMN>");
    if (!collection.IsGood() || !repeat.IsGood() || repeat.GetWidgetCount() != 2 * items)
    {
        state.SkipWithError("the skins are not as they should be");
        return;
    }
    Benchmarks::CContest contest(state, items);
    contest.Add("collection",
                [&collection]
                {
                    collection.SetCount(items);
                    collection.SetCount(0);
                });
    contest.Add("repeat",
                [&repeat]
                {
                    repeat.Close();
                    repeat.Build();
                });
    contest.Add("by hand", MakeByHand);
    contest.Run();
}

BENCHMARK(GrowAndShrink)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
