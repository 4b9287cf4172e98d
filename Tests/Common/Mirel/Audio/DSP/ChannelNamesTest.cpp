#include "Mirel/Audio/DSP/TMonoToStereoInfo.h"
#include "Mirel/Audio/DSP/TStereoToMidSideInfo.h"
#include "Mirel/DataModel/Objects/CCurveInfo.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/DataModel/Objects/CStringInfo.h"
#include "Mirel/DataModel/Objects/CSurfaceInfo.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace Mirel::Audio::DSP;
using namespace Mirel::DataModel::Objects;
using Mirel::Containers::TDynamicCollection;

namespace
{

using CStrings = TDynamicCollection<CStringInfo, IStringInfo>;
using CStereo = TMonoToStereoInfo<CStringInfo, IStringInfo>;
using CMidSide = TStereoToMidSideInfo<CStringInfo, IStringInfo>;

template <class Collection>
std::vector<std::string> Names(const Collection& infos)
{
    std::vector<std::string> names;
    for (int i = 0; i < infos.GetCount(); ++i)
    {
        const char* name = infos[i].GetName();
        names.emplace_back(name == nullptr ? "<null>" : name);
    }
    return names;
}

/// The two labels in place of the channels of one name.
std::string Relabel(const char* name, const char* label1, const char* label2)
{
    CStrings stereo;
    stereo.Add(name);
    return Names(CMidSide(stereo, label1, label2)).at(0);
}

} // namespace

TEST(TMonoToStereoInfo, ListsEveryEntryOfTheLeftThenEveryEntryOfTheRight)
{
    CStrings mono;
    mono.Add("Waveform");
    mono.Add("Histogram");

    EXPECT_EQ(Names(CStereo(mono)),
              (std::vector<std::string>{"Waveform (L)", "Histogram (L)", "Waveform (R)", "Histogram (R)"}));
    EXPECT_EQ(CStereo(CStrings()).GetCount(), 0);
}

TEST(TMonoToStereoInfo, TakesOverAllButTheName)
{
    TDynamicCollection<CParamInfo, IParamInfo> params;
    params.Add(1, -2.0f, 4.0f, 3.0f, "Level", "dB", "How loud");
    const TMonoToStereoInfo<CParamInfo, IParamInfo> stereo(params);
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_EQ(stereo[i].GetType(), 1);
        EXPECT_EQ(stereo[i].GetMin(), -2.0f);
        EXPECT_EQ(stereo[i].GetMax(), 4.0f);
        EXPECT_EQ(stereo[i].GetDefault(), 3.0f);
        EXPECT_STREQ(stereo[i].GetUnit(), "dB");
        EXPECT_STREQ(stereo[i].GetComment(), "How loud");
    }

    TDynamicCollection<CCurveInfo, ICurveInfo> curves;
    curves.Add(params[0], CParamInfo(), "Curve", "A line");
    const TMonoToStereoInfo<CCurveInfo, ICurveInfo> stereoCurves(curves);
    EXPECT_STREQ(stereoCurves[1].GetName(), "Curve (R)");
    EXPECT_STREQ(stereoCurves[1].GetComment(), "A line");
    EXPECT_STREQ(stereoCurves[1].GetXInfo().GetName(), "Level");

    TDynamicCollection<CSurfaceInfo, ISurfaceInfo> surfaces;
    surfaces.Add(params[0], CParamInfo(), CParamInfo(), "Surface", "A plane");
    const TMonoToStereoInfo<CSurfaceInfo, ISurfaceInfo> stereoSurfaces(surfaces);
    EXPECT_STREQ(stereoSurfaces[0].GetName(), "Surface (L)");
    EXPECT_STREQ(stereoSurfaces[0].GetXInfo().GetName(), "Level");
}

TEST(TMonoToStereoInfo, NullNameCountsAsEmpty)
{
    CStrings mono;
    mono.Add(nullptr);

    EXPECT_EQ(Names(CStereo(mono)), (std::vector<std::string>{" (L)", " (R)"}));
}

TEST(TMonoToStereoInfo, CopyDoesNotFollowItsSource)
{
    CStrings mono;
    mono.Add("Text");
    const CStereo stereo(mono);
    mono[0].SetName("Other");

    EXPECT_STREQ(stereo[0].GetName(), "Text (L)");
}

TEST(TStereoToMidSideInfo, LabelsTakeThePlaceOfTheChannelsWhereverTheyStand)
{
    EXPECT_EQ(Relabel("Waveform (L)", "(1)", "(2)"), "Waveform (1)");
    EXPECT_EQ(Relabel("Waveform (R)", "(1)", "(2)"), "Waveform (2)");
    EXPECT_EQ(Relabel("(R)(L) to (R)", "M", "Side"), "SideM to Side");
    EXPECT_EQ(Relabel("(L)", "", "x"), "");
}

TEST(TStereoToMidSideInfo, NamesWithoutAChannelStay)
{
    for (const char* name : {"", "Level", "(l)", "(L", "L)", "((R"})
    {
        EXPECT_EQ(Relabel(name, "(1)", "(2)"), name);
    }
}

TEST(TStereoToMidSideInfo, LabelsAreNotTakenForChannelsThemselves)
{
    EXPECT_EQ(Relabel("Waveform (L)", "(R)", "(L)"), "Waveform (R)");
    EXPECT_EQ(Relabel("Waveform (R)", "(R)", "(L)"), "Waveform (L)");
    EXPECT_EQ(Relabel("Waveform (L)", "((L))", "2"), "Waveform ((L))");
}

TEST(TStereoToMidSideInfo, NullNameStaysNull)
{
    CStrings stereo;
    stereo.Add(nullptr, "a comment");
    const CMidSide labelled(stereo, "(1)", "(2)");

    EXPECT_EQ(labelled[0].GetName(), nullptr);
    EXPECT_STREQ(labelled[0].GetComment(), "a comment");
}
