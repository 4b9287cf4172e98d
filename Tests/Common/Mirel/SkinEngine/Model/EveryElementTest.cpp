#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/CCaptureParamTimerProxy.h"
#include "Mirel/DataModel/Objects/IConstAction.h"
#include "ModelRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;
using testing::ElementsAre;
using testing::IsEmpty;
using Tests::CModelRig;

/// The model of the file that has every element with every attribute, beside two objects of a host.
class EveryElement : public testing::Test
{
protected:
    EveryElement()
    {
        rig.model.AddConstParam("host.meter", &meter, allObjectFlags, false);
        rig.model.AddConstParam("host.level", &level, objectItself, false);
        for (const char* id : {"alive",
                               "link.*",
                               "calculation.mode",
                               "display.enabled",
                               "mixer.reverse",
                               "tie.reverse",
                               "glide.refresh_time_ms",
                               "curve_link.enabled",
                               "string_link.enabled",
                               "history.paused",
                               "landscape.refresh_time_ms",
                               "sweep",
                               "sweep.enabled",
                               "open*",
                               "bands.count",
                               "views.count",
                               "steps",
                               "on",
                               "shape",
                               "gain.max",
                               "ramp.x_info",
                               "history",
                               "landscape",
                               "ramp_at_x",
                               "plane_at_x_y"})
        {
            rig.model.GetExposure().Use(id);
        }
        parsed = rig.factory.Parse((std::string(TEST_MODELS_FOLDER) + "/every_element.model").c_str(), true);
    }

    CCaptureParam source;
    CConstCaptureParamTimerProxy meter{source, nullptr};
    CConstCaptureParamTimerProxy level{source, nullptr};
    CModelRig rig;
    bool parsed = false;
};

TEST_F(EveryElement, IsBuiltAsWritten)
{
    EXPECT_TRUE(parsed);
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_THAT(
        rig.Lines(),
        ElementsAre(
            "host.meter: const param = 0 '0.00' | '' 0..0 default 0 type 2 unit ''",
            "host.meter.info: const info | '' 0..0 default 0 type 2 unit ''",
            "host.meter.default: const param = 0 '0.00' | ' Default' -3.4028234664e+38..3.4028234664e+38 "
            "default 0 type 2 unit ''",
            "host.meter.min: const param = 0 '0.00' | ' Min' -3.4028234664e+38..3.4028234664e+38 default 0 "
            "type 2 unit ''",
            "host.meter.max: const param = 0 '0.00' | ' Max' -3.4028234664e+38..3.4028234664e+38 default 0 "
            "type 2 unit ''",
            "host.level: const param = 0 '0.00' | '' 0..0 default 0 type 2 unit ''",
            "alive: const param = 1 'alive' | 'Alive' 0..1 default 0 type 1 unit ''",
            "gain: param = 2.5 '2.50' | 'Gain' -10..10 default 2.5 type 2 unit 'dB'",
            "gain.max: const param = 10 '10.00' | 'Gain Max' -3.4028234664e+38..3.4028234664e+38 default 10 "
            "type 2 unit 'dB'",
            "steps: param = 3 '3' | 'Steps' 1..8 default 3 type 1 unit ''",
            "on: param = 1 '1' | 'On' 0..1 default 1 type 0 unit ''",
            "shape.enum_values: string = 'sine;saw;square' | 'Enum Values' default ''",
            "shape: param = 2 'saw' | 'Shape' 1..3 default 2 type 1 unit ''",
            "x: param = 0.5 '0.50' | 'X' 0..1 default 0.5 type 2 unit ''",
            "y: param = 0.25 '0.25' | 'Y' 0..1 default 0.25 type 2 unit ''",
            // (2.5 + 10) / 20 squared is 0.390625; reversed 0.609375 of 100.
            "linked: param = 60.9375 '60.94' | 'Linked' 0..100 default 0 type 2 unit ''",
            // (2.5 + 10) / 20 of 100.
            "connected: param = 62.5 '62.50' | 'Connected' 0..100 default 0 type 2 unit ''",
            "glided: param = 0 '0.00' | 'Glided' -10..10 default 0 type 2 unit ''",
            "swept: param = 0 '0.00' | 'Swept' 0..10 default 0 type 2 unit ''",
            // (0.5 + 0.25) / 2
            "mean: param = 0.375 '0.38' | 'Mean' 0..1 default 0 type 2 unit ''",
            // 3 squared and 1
            "calculated: param = 10 '10.00' | 'Calculated' -100..100 default 0 type 2 unit ''",
            "shapery_.enum_values: string = 'low;high' | 'Enum Values' default ''",
            "shaper: curve = 1 1 1 | 'Shaper' x 'Time' 0..1 default 0.10000000149 type 2 unit 's' y 'Level' "
            "0..1 "
            "default 1 type 1 unit 'V'",
            "copy: curve = 0 1.25 2.5 | '' x '' 0..1 default 0 type 2 unit '' y '' 0..10 default 0 type 2 "
            "unit ''",
            "sum: curve = 1 2.25 3.5 | '' x '' 0..1 default 0 type 2 unit '' y '' 0..10 default 0 type 2 "
            "unit ''",
            "title: string = 'Hello' | 'Title' default 'Hello'",
            // Two significant digits of 2.5, with three decimals.
            "shown: string = 'Gain: +2.500 dB' | '' default ''", "repeated: string = 'Hello' | '' default ''",
            "joined: string = 'Hello - http://localhost/page' | '' default ''",
            "page: string = 'http://localhost/page' | '' default 'http://localhost/page'",
            // 2.5 * 2 + 0.5 * 2.5
            "double_gain: const param = 6.25 '6.25' | 'Double' -20..20 default 0 type 2 unit 'dB'",
            "ramp: const curve = 0 1.25 2.5 | 'Ramp' x '' 0..1 default 0 type 2 unit '' y '' -10..10 default "
            "0 "
            "type 2 unit ''",
            "ramp.x_info: const info | '' 0..1 default 0 type 2 unit ''",
            "ramp.y_info: const info | '' -10..10 default 0 type 2 unit ''",
            "plane: const surface = 0 0.625 1.25 | 'Plane' x '' 0..1 default 0 type 2 unit '' y '' 0..1 "
            "default 0 "
            "type 2 unit '' z '' 0..2 default 0 type 2 unit ''",
            "history: const curve = 2.5 2.5 2.5 | 'History' x 'time' -2..0 default 0 type 2 unit 's' y "
            "'Gain' "
            "-10..10 default 2.5 type 2 unit 'dB'",
            "history.paused: param = 1 'paused' | 'Paused' 0..1 default 1 type 1 unit ''",
            "landscape: const surface = 0 0 0 | 'Landscape' x 'time' -1..0 default 0 type 2 unit 's' y '' "
            "0..1 "
            "default 0 type 2 unit '' z '' -10..10 default 0 type 2 unit ''",
            "landscape.refresh_time_ms: param = 30 '30' | 'Refresh Time' 0..1000000 default 30 type 1 unit "
            "'ms'",
            "ramp_at_x: const param = 1.25 '1.25' | '' -10..10 default 0 type 2 unit ''",
            "plane_at_x_y: const param = 0.5625 '0.56' | '' 0..2 default 0 type 2 unit ''",
            "sweep: const object",
            "sweep.enabled: param = 1 'enabled' | 'Enabled' 0..1 default 1 type 1 unit ''",
            "link.reverse: param = 1 'reverse' | 'Reverse' 0..1 default 1 type 1 unit ''",
            "link.reverse.info: const info | 'Reverse' 0..1 default 1 type 1 unit ''",
            "link.reverse.default: const param = 1 'reverse' | 'Reverse Default' "
            "-3.4028234664e+38..3.4028234664e+38 default 1 type 1 unit ''",
            "link.reverse.min: const param = 0 'normal' | 'Reverse Min' "
            "-3.4028234664e+38..3.4028234664e+38 default 0 type 1 unit ''",
            "link.reverse.max: const param = 1 'reverse' | 'Reverse Max' "
            "-3.4028234664e+38..3.4028234664e+38 default 1 type 1 unit ''",
            "link.mode: param = 0 'normal' | 'Mode' 0..1 default 0 type 1 unit ''",
            "link.mode.info: const info | 'Mode' 0..1 default 0 type 1 unit ''",
            "link.mode.default: const param = 0 'normal' | 'Mode Default' "
            "-3.4028234664e+38..3.4028234664e+38 "
            "default 0 type 1 unit ''",
            "link.mode.min: const param = 0 'normal' | 'Mode Min' -3.4028234664e+38..3.4028234664e+38 "
            "default 0 "
            "type 1 unit ''",
            "link.mode.max: const param = 1 'diff' | 'Mode Max' -3.4028234664e+38..3.4028234664e+38 default "
            "1 "
            "type 1 unit ''",
            "link.enabled: param = 1 'enabled' | 'Enabled' 0..1 default 1 type 1 unit ''",
            "link.enabled.info: const info | 'Enabled' 0..1 default 1 type 1 unit ''",
            "link.enabled.default: const param = 1 'enabled' | 'Enabled Default' "
            "-3.4028234664e+38..3.4028234664e+38 default 1 type 1 unit ''",
            "link.enabled.min: const param = 0 'disabled' | 'Enabled Min' "
            "-3.4028234664e+38..3.4028234664e+38 default 0 type 1 unit ''",
            "link.enabled.max: const param = 1 'enabled' | 'Enabled Max' "
            "-3.4028234664e+38..3.4028234664e+38 default 1 type 1 unit ''",
            "calculation.mode: param = 0 'normal' | 'Mode' 0..1 default 0 type 1 unit ''",
            "display.enabled: param = 1 'enabled' | 'Enabled' 0..1 default 1 type 1 unit ''",
            "mixer.reverse: param = 0 'normal' | 'Reverse' 0..1 default 0 type 1 unit ''",
            "tie.reverse: param = 0 'normal' | 'Reverse' 0..1 default 0 type 1 unit ''",
            "glide.refresh_time_ms: param = 15 '15' | 'Refresh Time' 0..1000000 default 15 type 1 unit 'ms'",
            "curve_link.enabled: param = 1 'enabled' | 'Enabled' 0..1 default 1 type 1 unit ''",
            "string_link.enabled: param = 1 'enabled' | 'Enabled' 0..1 default 1 type 1 unit ''",
            "open: const action | ''", "open_fixed: const action | ''", "bands: collection = 2",
            "bands.count: param = 2 '2' | 'Count' 1..4 default 2 type 1 unit ''",
            "views: const collection = 2",
            "views.count: const param = 2 '2' | 'Count' 0..2147483648 default 0 type 1 unit ''",
            "bands[0].level: param = 0.5 '0.50' | 'Level' 0..1 default 0.5 type 2 unit ''",
            "bands[1].level: param = 0.5 '0.50' | 'Level' 0..1 default 0.5 type 2 unit ''",
            "views[0].shown: param = 0.5 '0.50' | 'Shown' 0..1 default 0 type 2 unit ''",
            "views[1].shown: param = 0.5 '0.50' | 'Shown' 0..1 default 0 type 2 unit ''"));
}

TEST_F(EveryElement, ObjectsOfTheHostTakeTheirRefreshTimesFromTheModel)
{
    EXPECT_EQ(meter.GetRefreshTime(), 25);
    EXPECT_EQ(level.GetRefreshTime(), 40);
    EXPECT_STREQ(rig.model.GetId(), "every");
}

TEST_F(EveryElement, LinksFollowTheirSources)
{
    rig.Param("gain").SetValue(5);
    EXPECT_FLOAT_EQ(rig.Value("linked"), (1 - 0.75f * 0.75f) * 100);
    EXPECT_FLOAT_EQ(rig.Value("connected"), 75);
    EXPECT_EQ(rig.Text("shown"), "Gain: +5.000 dB");
    EXPECT_FLOAT_EQ(rig.Value("double_gain"), 12.5f);
    EXPECT_FLOAT_EQ(rig.Value("ramp_at_x"), 2.5f);
    EXPECT_FLOAT_EQ(rig.Find<IConstCaptureCurve>("copy")->GetValue()(1), 5);
    EXPECT_FLOAT_EQ(rig.Find<IConstCaptureCurve>("sum")->GetValue()(1), 6);
    rig.Param("connected").SetValue(0);
    EXPECT_FLOAT_EQ(rig.Value("gain"), -10);
    rig.Param("x").SetValue(1);
    EXPECT_FLOAT_EQ(rig.Value("mean"), 0.625f);
    EXPECT_FLOAT_EQ(rig.Value("plane_at_x_y"), 1 + 0.25f * 0.25f);
    rig.Find<ICaptureString>("title")->SetValue("Bye");
    EXPECT_EQ(rig.Text("repeated"), "Bye");
    EXPECT_EQ(rig.Text("joined"), "Bye - http://localhost/page");
    rig.Param("bands[1].level").SetValue(0.75f);
    EXPECT_FLOAT_EQ(rig.Value("views[1].shown"), 0.75f);
}

TEST_F(EveryElement, SwitchesMoveTheSettingsOfLinks)
{
    rig.Param("link.enabled").SetValue(0);
    rig.Param("gain").SetValue(10);
    EXPECT_FLOAT_EQ(rig.Value("linked"), 60.9375f);
    rig.Param("link.enabled").SetValue(1);
    EXPECT_FLOAT_EQ(rig.Value("linked"), 0);
    rig.Param("link.reverse").SetValue(0);
    EXPECT_FLOAT_EQ(rig.Value("linked"), 100);
    rig.Param("link.mode").SetValue(1);
    rig.Param("linked").SetValue(90);
    rig.Param("gain").SetValue(0);
    EXPECT_FLOAT_EQ(rig.Value("linked"), 90 - 75);
}

TEST_F(EveryElement, TimeMovesWhatFollowsIt)
{
    rig.clock.AdvanceMilliseconds(50);
    rig.timer.Tick();
    EXPECT_NEAR(rig.Value("glided"), 1.25f, 0.001f);
    EXPECT_NEAR(rig.Value("swept"), 0.5f, 0.001f);
    rig.clock.AdvanceMilliseconds(50);
    rig.timer.Tick();
    EXPECT_FLOAT_EQ(rig.Value("glided"), 2.5f);
    const auto* landscape = rig.Find<IConstCaptureSurface>("landscape");
    EXPECT_FLOAT_EQ(landscape->GetValue()(0, 1), 2.5f);
    rig.Param("sweep.enabled").SetValue(0);
    rig.clock.AdvanceMilliseconds(100);
    rig.timer.Tick();
    EXPECT_NEAR(rig.Value("swept"), 1.0f, 0.001f);
}

TEST_F(EveryElement, ActionsOpenPages)
{
    rig.Find<IConstAction>("open_fixed")->Execute();
    rig.Find<IConstAction>("open")->Execute();
    rig.Find<ICaptureString>("page")->SetValue("http://localhost/other");
    rig.Find<IConstAction>("open")->Execute();
    EXPECT_THAT(rig.opener.urls,
                ElementsAre("http://localhost/", "http://localhost/page", "http://localhost/other"));
}

TEST_F(EveryElement, WhatIsPersistentAndExposedIsRemembered)
{
    const auto ids = [](const ISkinDynamicObjectsDictionary& dictionary)
    {
        std::string all;
        const std::unique_ptr<ISkinDynamicObjectsConstIterator> entry(dictionary.CreateIterator());
        for (; entry->IsValid(); entry->Next())
        {
            all += std::string(entry->GetId()) + " ";
        }
        return all;
    };
    // Items are complete before the model around them.
    EXPECT_EQ(ids(rig.model.GetPersistentObjects()),
              "bands[0].level bands[1].level gain shaper title x y page bands ");
    EXPECT_EQ(ids(rig.model.GetExposedObjects()), "gain shaper title double_gain ramp plane x page bands ");
}

TEST_F(EveryElement, NothingIsLeftAfterClear)
{
    rig.model.Clear();
    EXPECT_THAT(rig.Lines(), IsEmpty());
    EXPECT_TRUE(rig.timer.periods.empty());
}

} // namespace
} // namespace Mirel::SkinEngine
