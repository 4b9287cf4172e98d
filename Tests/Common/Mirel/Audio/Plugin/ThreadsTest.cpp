// One instance under all its threads at once: the audio thread, an editor, the host's threads and the loop.
// What fails here fails in the thread sanitizer.

#include "CTestInstance.h"
#include "MIDIMappingRig.h"

#include <atomic>
#include <gtest/gtest.h>
#include <string>
#include <thread>

using namespace Mirel::Audio::Plugin;
using Tests::Bind;
using Tests::Controller;
using Tests::CTestInstance;
using Tests::CTestPlaces;

namespace
{

class CDiscardingMIDIOutput : public IMIDIOutput
{
public:
    void Post(const CMIDIEvent& event) override { last = event; }

    CMIDIEvent last;
};

TEST(Threads, AudioEditorAndHostShareAnInstance)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    auto& internals = instance.internals;
    ASSERT_TRUE(internals.InitFilter(48000.0));
    internals.Init(internals.GetInputValues(), internals.GetOutputValues());
    Bind(internals.GetDefaultSettings().GetInputMIDISettings()[1], 0, 7);
    Bind(internals.GetInputMIDISettings()[2], 0, 7);
    const std::string saved = instance.SaveText();

    std::atomic<bool> stop = false;
    std::thread audio(
        [&]
        {
            CDiscardingMIDIOutput midi;
            for (int i = 0; !stop; ++i)
            {
                internals.ProcessMIDI(Controller(1 + i % 16, 7, i % 128));
                for (int p = 0; p < internals.GetInputValues().GetCount(); ++p)
                {
                    static_cast<void>(internals.GetInputValues()[p].GetValue());
                }
                internals.AddProcessedSamples(64);
                if (internals.GetOutputDataSync().IsOutputDue())
                {
                    internals.GetOutputDataSync().Reset();
                    internals.PublishOutputParams(&midi);
                }
            }
        });
    std::thread editor(
        [&]
        {
            for (int i = 0; !stop; ++i)
            {
                CMIDICCSetting& setting = internals.GetInputMIDISettings()[i % 4];
                setting.SetCurve(i % 13);
                setting.SetChannel(i % 17);
                setting.SetMin(static_cast<float>(i % 3));
                internals.GetOutputAutomationSettings()[i % 2].SetEnabled(i % 2 == 0);
                internals.GetUseDefaultInputMIDI().SetValue(i % 2 == 0);
                internals.GetUseDefaultOutputAutomation().SetValue(i % 3 == 0);
                internals.GetDefaultSettings().SetOutputRefreshRate(20.0 + i % 5);
                internals.GetDefaultSettings().SetSkinFile(i % 2 == 0 ? "/a.xml" : "/b.xml");
                static_cast<void>(internals.GetOutputValues()[i % 2].GetValue());
                static_cast<void>(internals.GetLastMIDIMessage().Get());
                internals.ResetPresetMIDISettings();
            }
        });
    std::thread host(
        [&]
        {
            while (!stop)
            {
                EXPECT_TRUE(instance.LoadText(saved));
                instance.SetInput(1, 0.25f);
            }
        });
    for (int i = 0; i < 300; ++i)
    {
        const std::string text = instance.SaveText();
        ASSERT_EQ(text.find("<?xml"), 0U);
        static_cast<void>(internals.GetCurrentPresetName());
    }
    stop = true;
    audio.join();
    editor.join();
    host.join();
}

TEST(Threads, EditorsOfSeveralWindowsShareTheGlobalSettings)
{
    const CTestPlaces places;
    const Tests::CTestFilter filter(3, 2);
    const auto settings = Tests::MakeSettings(places, filter);
    settings->Save();
    CTestInstance instance(places);
    std::atomic<bool> stop = false;
    std::thread loading(
        [&]
        {
            while (!stop)
            {
                settings->Load();
            }
        });
    for (int i = 0; i < 50; ++i)
    {
        settings->CopyInputMIDISettings(instance.internals.GetInputMIDISettings());
        settings->SetSkinFile("/c.xml");
        settings->Save();
    }
    stop = true;
    loading.join();
    EXPECT_TRUE(settings->GetInputMIDISettings()[0].GetMax() > 0.5f);
}

} // namespace
