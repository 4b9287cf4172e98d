#include "Mirel/Audio/Plugin/CPluginSkinModel.h"

#include "CTestInstance.h"
#include "Mirel/Audio/Plugin/CPluginSkinModelFactory.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "PublishingEffect.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/ThreadState.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

namespace Mirel::Audio::Plugin
{
namespace
{

using namespace DataModel::Objects;
using namespace SkinEngine;

struct CPluginSkinModelTest : testing::Test
{
    CPluginSkinModelTest()
    {
        bool ok = false;
        effect.Init(44100.0, ok);
        captures.Prepare(effect);
        inputsInfo.Add(0, 0.0f, 1.0f, 0.0f, "Bypass", "", "");
        inputsInfo.Add(2, 0.0f, 10.0f, 3.0f, "Gain", "dB", "");
        inputs.Add(inputsInfo[0]);
        inputs.Add(inputsInfo[1]);
        bindings.inputsInfo = &inputsInfo;
        bindings.inputs = &inputs;
        bindings.outputsInfo = &effect.GetOutputParamsInfo();
        bindings.outputCaptures = &captures;
        bindings.defaultSettings = settings.get();
        bindings.filter = &effect;
        model = std::make_unique<CPluginSkinModel>(bindings, SSkinModelServices());
    }

    bool Load(const std::string& body)
    {
        places.WriteData("Model/model.model", body);
        return model->Load(settings->GetModelFile());
    }

    template <class I>
    I* Find(const char* id)
    {
        return FindObject<I>(model->GetModel().GetObjects(), id);
    }

    bool HasErrors() const { return model->GetLog().HasMessages(CoreUtilities::CMessageKind::Error); }

    bool LogHas(const std::string& text) const
    {
        for (const auto& message : model->GetLog().GetMessages())
        {
            if (message.text == text)
            {
                return true;
            }
        }
        return false;
    }

    Tests::CTestPlaces places;
    Tests::CPublishingEffect effect;
    COutputCaptures captures{effect};
    DSP::CParamsInfo inputsInfo;
    CInputParamValues inputs;
    std::unique_ptr<CAudioPluginDefaultSettings> settings = Tests::MakeSettings(places, effect);
    CAudioPluginBindings bindings;
    Tests::CFakeTimerProvider timers;
    std::unique_ptr<CPluginSkinModel> model;
};

TEST_F(CPluginSkinModelTest, BuildsTheObjectsOfThePluginThatTheFileMarksAndAllOfTheFile)
{
    ASSERT_TRUE(Load(R"(<MODEL id="scope">
                          <PARAM id="level" max="1"/>
                          <PARAM id="unused"/>
                          <PARAM_LINK from="dsp.output0" to="level"/>
                        </MODEL>)"));
    EXPECT_FALSE(HasErrors());
    EXPECT_STREQ(model->GetModel().GetId(), "scope");
    EXPECT_TRUE(model->GetModel().GetEnable().IsEnabled());
    EXPECT_NE(Find<IConstCaptureParam>("dsp.output0"), nullptr);
    EXPECT_NE(Find<ICaptureParam>("level"), nullptr);
    EXPECT_NE(Find<ICaptureParam>("unused"), nullptr);
    EXPECT_EQ(Find<ICaptureParam>("dsp.input0"), nullptr);
    EXPECT_EQ(Find<IConstCaptureCurve>("dsp.output_curve0"), nullptr);
}

TEST_F(CPluginSkinModelTest, NothingMovesUntilTimersAreAttached)
{
    ASSERT_TRUE(Load(R"(<MODEL refresh_time_ms="20">
                          <PARAM id="level" max="1"/>
                          <PARAM_LINK from="dsp.output0" to="level"/>
                          <PARAM id="gain" max="10"/>
                          <PARAM_LINK from="gain" to="dsp.input1" trigger_condition="modify"/>
                        </MODEL>)"));
    effect.SetLevel(0.5f);
    ASSERT_TRUE(captures.Publish(effect));
    timers.Tick();
    EXPECT_EQ(Find<ICaptureParam>("level")->GetValue(), 0.0f);
    model->AttachTimers(&timers);
    EXPECT_EQ(timers.trace, "+20+20");
    timers.Tick();
    EXPECT_EQ(Find<ICaptureParam>("level")->GetValue(), 0.5f);
    Find<ICaptureParam>("gain")->SetValue(4.0f);
    EXPECT_EQ(inputs[1].GetValue(), 4.0f);
    model->AttachTimers(nullptr);
    EXPECT_TRUE(timers.periods.empty());
}

TEST_F(CPluginSkinModelTest, TheFileKnowsThePluginByItsVariables)
{
    ASSERT_TRUE(Load(R"(<MODEL>
        <STRING id="s" exposed="true" default="$PLUGIN_AUDIO_INPUTS_COUNT$ $PLUGIN_AUDIO_OUTPUTS_COUNT$)"
                     R"( $PLUGIN_INPUT_PARAMS_COUNT$ $PLUGIN_OUTPUT_PARAMS_COUNT$ $PLUGIN_NAME$"/>
                        </MODEL>)"));
    EXPECT_STREQ(Find<ICaptureString>("s")->GetValue(), "1 0 2 1 Recorder");
}

TEST_F(CPluginSkinModelTest, WhatThePluginCannotGiveIsNotSet)
{
    bindings = {};
    model = std::make_unique<CPluginSkinModel>(bindings, SSkinModelServices());
    ASSERT_TRUE(Load(R"(<MODEL><STRING id="s" default="$PLUGIN_AUDIO_INPUTS_COUNT$"/></MODEL>)"));
    EXPECT_STREQ(Find<ICaptureString>("s")->GetValue(), "$PLUGIN_AUDIO_INPUTS_COUNT$");
}

TEST_F(CPluginSkinModelTest, AFileThatIsNoModelGivesNone)
{
    CPluginSkinModelFactory factory;
    for (const char* text : {"<MODEL>", "", "<SKIN/>", "no markup"})
    {
        places.WriteData("Model/model.model", text);
        EXPECT_EQ(factory.LoadModel(settings->GetModelFile(), bindings), nullptr) << text;
    }
    EXPECT_EQ(factory.LoadModel(places.DataPath("Model/missing.model").c_str(), bindings), nullptr);
    EXPECT_TRUE(timers.periods.empty());
}

TEST_F(CPluginSkinModelTest, ALinkToNowhereIsReportedAndTheRestStays)
{
    ASSERT_TRUE(Load(R"(<MODEL>
                          <PARAM id="level" max="1"/>
                          <PARAM_LINK from="dsp.output7" to="level"/>
                          <PARAM_LINK from="dsp.output0" to="level"/>
                        </MODEL>)"));
    EXPECT_TRUE(LogHas("dsp.output7: Unknown identifier (object does not exist)."));
    EXPECT_NE(Find<IConstCaptureParam>("dsp.output0"), nullptr);
    EXPECT_NE(Find<ICaptureParam>("level"), nullptr);
}

TEST_F(CPluginSkinModelTest, WantedObjectsOfTheSharedModelComeInByReference)
{
    places.WriteData("Model/shared.model", R"(<MODEL>
                                                <PARAM id="zoom" max="8" exposed="true"/>
                                                <PARAM id="theme" max="8" exposed="true"/>
                                                <PARAM id="nobody wants this"/>
                                              </MODEL>)");
    ASSERT_TRUE(Load(R"(<MODEL>
                          <PARAM id="scale" max="8"/>
                          <PARAM_LINK from="zoom" to="scale"/>
                        </MODEL>)"));
    EXPECT_FALSE(HasErrors());
    ASSERT_NE(Find<ICaptureParam>("zoom"), nullptr);
    Find<ICaptureParam>("zoom")->SetValue(4.0f);
    EXPECT_EQ(Find<ICaptureParam>("scale")->GetValue(), 4.0f);
    EXPECT_EQ(Find<ICaptureParam>("theme"), nullptr);
    EXPECT_EQ(Find<ICaptureParam>("nobody wants this"), nullptr);
}

TEST_F(CPluginSkinModelTest, ItemsOfASharedCollectionGoFromTheModelWithTheirCollection)
{
    places.WriteData("Model/shared.model", R"(<MODEL>
          <COLLECTION id="bands" count="2" exposed="true">
            <PARAM id="$item_id$.gain" max="1" exposed="true"/>
          </COLLECTION>
          <EXPOSED_OBJECTS object_ids="bands.count"/>
        </MODEL>)");
    ASSERT_TRUE(Load(R"(<MODEL>
                          <EXPOSED_OBJECTS object_ids="bands[1].gain;bands.count"/>
                        </MODEL>)"));
    ASSERT_NE(Find<ICaptureParam>("bands.count"), nullptr);
    EXPECT_NE(Find<ICaptureParam>("bands[1].gain"), nullptr);
    Find<ICaptureParam>("bands.count")->SetValue(1.0f);
    EXPECT_EQ(Find<ICaptureParam>("bands[1].gain"), nullptr);
    Find<ICaptureParam>("bands.count")->SetValue(2.0f);
    EXPECT_NE(Find<ICaptureParam>("bands[1].gain"), nullptr);
}

TEST_F(CPluginSkinModelTest, ASkinAddsWhatItWantsOfThePluginLater)
{
    ASSERT_TRUE(Load("<MODEL/>"));
    CSkinModelExposure wanted;
    wanted.Use("dsp.output_curve0");
    wanted.Use("dsp.input1.max");
    EXPECT_TRUE(model->AddPluginObjects(wanted));
    EXPECT_NE(Find<IConstCaptureCurve>("dsp.output_curve0"), nullptr);
    EXPECT_NE(Find<IConstCaptureParam>("dsp.input1.max"), nullptr);
    EXPECT_EQ(Find<IConstCaptureParam>("dsp.input1"), nullptr);
    EXPECT_TRUE(model->AddPluginObjects(wanted));
}

TEST_F(CPluginSkinModelTest, ItsStateGoesThroughTheInstance)
{
    const std::string text = R"(<MODEL><PARAM id="zoom" max="8" persistent="true"/></MODEL>)";
    ASSERT_TRUE(Load(text));
    Find<ICaptureParam>("zoom")->SetValue(3.0f);
    EXPECT_TRUE(model->GetModel().IsStateModified());
    Serialization::CMemDataObject saved;
    ASSERT_TRUE(model->Serialize(saved));
    model = std::make_unique<CPluginSkinModel>(bindings, SSkinModelServices());
    ASSERT_TRUE(Load(text));
    EXPECT_EQ(Find<ICaptureParam>("zoom")->GetValue(), 0.0f);
    EXPECT_TRUE(model->Deserialize(saved));
    EXPECT_EQ(Find<ICaptureParam>("zoom")->GetValue(), 3.0f);
    EXPECT_FALSE(model->GetModel().IsStateModified());
}

TEST_F(CPluginSkinModelTest, ItemsOfCollectionsComeBackWithTheirState)
{
    const std::string text = R"(<MODEL>
          <COLLECTION id="bands" max_count="8" persistent="true">
            <PARAM id="$item_id$.gain" max="1" persistent="true"/>
            <COLLECTION id="$item_id$.taps" item_name="tap" max_count="4" persistent="true">
              <PARAM id="$tap$.delay" max="100" persistent="true"/>
            </COLLECTION>
          </COLLECTION>
        </MODEL>)";
    ASSERT_TRUE(Load(text));
    EXPECT_FALSE(HasErrors());
    Find<ICount>("bands")->SetCount(3);
    ASSERT_NE(Find<ICount>("bands[2].taps"), nullptr);
    Find<ICount>("bands[2].taps")->SetCount(2);
    Find<ICaptureParam>("bands[1].gain")->SetValue(0.5f);
    Find<ICaptureParam>("bands[2].taps[1].delay")->SetValue(40.0f);
    EXPECT_TRUE(model->GetModel().IsStateModified());
    Serialization::CMemDataObject saved;
    ASSERT_TRUE(model->Serialize(saved));

    model = std::make_unique<CPluginSkinModel>(bindings, SSkinModelServices());
    ASSERT_TRUE(Load(text));
    EXPECT_EQ(Find<ICount>("bands")->GetCount(), 0);
    EXPECT_TRUE(model->Deserialize(saved));
    EXPECT_EQ(Find<ICount>("bands")->GetCount(), 3);
    ASSERT_NE(Find<ICaptureParam>("bands[2].taps[1].delay"), nullptr);
    EXPECT_EQ(Find<ICaptureParam>("bands[2].taps[1].delay")->GetValue(), 40.0f);
    EXPECT_EQ(Find<ICaptureParam>("bands[1].gain")->GetValue(), 0.5f);
    EXPECT_EQ(Find<ICaptureParam>("bands[0].gain")->GetValue(), 0.0f);
}

TEST_F(CPluginSkinModelTest, ACountFromAStateKeepsToTheCollectionsRange)
{
    ASSERT_TRUE(Load(R"(<MODEL>
          <COLLECTION id="bands" count="1" min_count="1" max_count="3" persistent="true">
            <PARAM id="$item_id$.gain"/>
          </COLLECTION>
        </MODEL>)"));
    for (const int count : {2000000000, -2000000000, 2})
    {
        CSkinModelState state;
        state.collections.push_back({"bands.count", count});
        model->GetModel().RestoreState(state);
        EXPECT_EQ(Find<ICount>("bands")->GetCount(), count > 3 ? 3 : std::max(count, 1));
    }
}

TEST(CPluginSkinModelFactory, AnInstanceLoadsItsModelOnTheLoopAndKeepsItsState)
{
    const Tests::CTestPlaces places;
    places.WriteData("Model/model.model", R"(<MODEL>
                                               <PARAM id="zoom" max="8" persistent="true"/>
                                               <PARAM_LINK from="dsp.input1" to="zoom" enabled="false"/>
                                             </MODEL>)");
    CPluginSkinModelFactory factory;
    Tests::CTestInstance instance(places);
    auto& holder = instance.internals.GetModel();
    holder.SetFactory(&factory);
    // As an instance gets it that was saved before: the model is not there yet.
    instance.LoadKeys("<model><state><version>2</version><paramStates><paramCount>1</paramCount><param0>"
                      "<name>zoom</name><value>5</value></param0></paramStates></state></model>");
    instance.internals.Init(instance.internals.GetInputValues(), instance.internals.GetOutputValues());
    Tests::WaitUntil([&holder] { return holder.GetSkinModel() != nullptr; });
    auto& model = dynamic_cast<CPluginSkinModel&>(*holder.GetSkinModel()).GetModel();
    ASSERT_NE(FindObject<ICaptureParam>(model.GetObjects(), "zoom"), nullptr);
    EXPECT_EQ(FindObject<ICaptureParam>(model.GetObjects(), "zoom")->GetValue(), 5.0f);
    EXPECT_STREQ(FindObject<ICaptureParam>(model.GetObjects(), "dsp.input1")->GetInfo().GetName(), "In 0");
}

} // namespace
} // namespace Mirel::Audio::Plugin
