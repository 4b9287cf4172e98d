#include "Mirel/Audio/Plugin/CAudioPluginModel.h"
#include "CTestInstance.h"
#include "Common/Mirel/Serialization/Values.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/System/CEvent.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"
#include "Support/ThreadState.h"

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using namespace Mirel::Audio::Plugin;
using namespace Mirel::Serialization;
using Mirel::System::CMessageLoopThread;
using Tests::CTestInstance;
using Tests::CTestPlaces;
using Tests::WaitUntil;

namespace
{

/// A model with one number, 1 after a reset.
class CSmallModel : public ISerializable
{
public:
    bool Serialize(IWriteDataStream& stream) const override { return stream.Write("number", number.load()); }
    bool Deserialize(const IReadDataStream& stream) override
    {
        int read = 1;
        stream.Read("number", read);
        number = read;
        return true;
    }

    std::atomic<int> number{1};
};

/// Makes small models and remembers how it was called. Can be held up.
class CSmallFactory : public ISkinModelFactory
{
public:
    std::unique_ptr<ISerializable> LoadModel(const char* path, const CAudioPluginBindings& given) override
    {
        thread = std::this_thread::get_id();
        lastPath = path;
        bindings = given;
        entered = true;
        if (holdUp)
        {
            while (!mayLeave.IsSet())
            {
                mayLeave.Wait(-1);
            }
        }
        ++calls;
        return fails ? nullptr : std::make_unique<CSmallModel>();
    }

    std::atomic<int> calls{0};
    std::atomic<bool> entered{false};
    std::atomic<bool> holdUp{false};
    std::atomic<bool> fails{false};
    Mirel::System::CEvent mayLeave{false};
    std::thread::id thread;
    std::string lastPath;
    CAudioPluginBindings bindings;
};

void InitModel(CTestInstance& instance, CSmallFactory* factory)
{
    instance.internals.GetModel().SetFactory(factory);
    instance.internals.Init(instance.internals.GetInputValues(), instance.internals.GetOutputValues());
}

/// Runs after all that was posted to the loop before.
void WaitForLoop()
{
    const Mirel::System::TSingletonInstance<CMessageLoopThread, Mirel::System::CCriticalSection> loop;
    std::atomic<bool> done = false;
    Tests::CFunctionCommand command([&] { done = true; });
    loop->Invoke(&command, false);
    EXPECT_TRUE(done);
}

std::string TextOf(const CAudioPluginModel& model)
{
    CXmlDataObject document("M");
    EXPECT_TRUE(model.Serialize(document));
    std::string text;
    EXPECT_TRUE(document.SaveToText(text));
    return text.substr(text.find("<M"));
}

int NumberOf(CAudioPluginModel& model)
{
    return dynamic_cast<CSmallModel&>(*model.GetSkinModel()).number;
}

TEST(CAudioPluginModel, WithoutAModelFileThereIsNoModelAndNoFailure)
{
    const CTestPlaces places;
    CSmallFactory factory;
    CTestInstance instance(places);
    InitModel(instance, &factory);
    WaitForLoop();
    EXPECT_EQ(factory.calls, 0);
    EXPECT_EQ(instance.internals.GetModel().GetSkinModel(), nullptr);
    EXPECT_EQ(instance.internals.GetModel().GetLoadedPath(), "");
}

TEST(CAudioPluginModel, WithoutAFactoryThereIsNoModel)
{
    const CTestPlaces places;
    places.WriteData("Model/model.model", "<MODEL/>");
    CTestInstance instance(places);
    InitModel(instance, nullptr);
    WaitForLoop();
    EXPECT_EQ(instance.internals.GetModel().GetSkinModel(), nullptr);
}

TEST(CAudioPluginModel, LoadsTheModelFileOnTheLoopWithTheInstancesBindings)
{
    const CTestPlaces places;
    places.WriteData("Model/model.model", "<MODEL/>");
    CSmallFactory factory;
    CTestInstance instance(places);
    CAudioPluginModel& model = instance.internals.GetModel();
    InitModel(instance, &factory);
    WaitForLoop();
    ASSERT_EQ(factory.calls, 1);
    EXPECT_NE(factory.thread, std::this_thread::get_id());
    EXPECT_EQ(factory.lastPath, places.DataPath("Model/model.model"));
    EXPECT_EQ(model.GetLoadedPath(), places.DataPath("Model/model.model"));
    EXPECT_NE(model.GetSkinModel(), nullptr);
    EXPECT_EQ(factory.bindings.inputs, &instance.internals.GetInputValues());
    EXPECT_EQ(factory.bindings.inputsInfo, &instance.internals.GetInputParamsInfo());
    EXPECT_EQ(factory.bindings.presets, &instance.internals.GetPresets());
    EXPECT_EQ(factory.bindings.defaultSettings, &instance.internals.GetDefaultSettings());
    EXPECT_EQ(factory.bindings.lastMIDIMessage, &instance.internals.GetLastMIDIMessage());
    EXPECT_EQ(factory.bindings.inputMIDISettings, &instance.internals.GetInputMIDISettings());
}

TEST(CAudioPluginModel, TwoInstancesShareOneLoopThread)
{
    const CTestPlaces places;
    places.WriteData("Model/model.model", "<MODEL/>");
    CSmallFactory firstFactory;
    CSmallFactory secondFactory;
    CTestInstance first(places);
    CTestInstance second(places);
    InitModel(first, &firstFactory);
    InitModel(second, &secondFactory);
    WaitForLoop();
    ASSERT_EQ(firstFactory.calls + secondFactory.calls, 2);
    EXPECT_EQ(firstFactory.thread, secondFactory.thread);
}

TEST(CAudioPluginModel, ASecondLoadWhileOneIsUnderWayIsIgnored)
{
    const CTestPlaces places;
    places.WriteData("Model/model.model", "<MODEL/>");
    CSmallFactory factory;
    factory.holdUp = true;
    CTestInstance instance(places);
    InitModel(instance, &factory);
    ASSERT_TRUE(WaitUntil([&] { return factory.entered.load(); }));
    instance.internals.GetModel().Load();
    instance.internals.GetModel().Load();
    factory.holdUp = false;
    factory.mayLeave.Set();
    WaitForLoop();
    EXPECT_EQ(factory.calls, 1);
    instance.internals.GetModel().Load();
    WaitForLoop();
    EXPECT_EQ(factory.calls, 2);
}

TEST(CAudioPluginModel, AFailedLoadLeavesWhatWasThere)
{
    const CTestPlaces places;
    places.WriteData("Model/model.model", "<MODEL/>");
    CSmallFactory factory;
    CTestInstance instance(places);
    CAudioPluginModel& model = instance.internals.GetModel();
    InitModel(instance, &factory);
    WaitForLoop();
    const ISerializable* before = model.GetSkinModel();
    factory.fails = true;
    model.Load();
    WaitForLoop();
    EXPECT_EQ(factory.calls, 2);
    EXPECT_EQ(model.GetSkinModel(), before);
}

TEST(CAudioPluginModel, FiresWhenAModelIsThere)
{
    const CTestPlaces places;
    places.WriteData("Model/model.model", "<MODEL/>");
    CSmallFactory factory;
    CTestInstance instance(places);
    Tests::CEventCounter loads(instance.internals.GetModel().GetLoadedEventProvider());
    InitModel(instance, &factory);
    WaitForLoop();
    EXPECT_EQ(loads.Take(), 1);
}

TEST(CAudioPluginModel, AnInstanceCanGoWhileItsLoadWaits)
{
    const CTestPlaces places;
    places.WriteData("Model/model.model", "<MODEL/>");
    CSmallFactory slow;
    slow.holdUp = true;
    CSmallFactory factory;
    CTestInstance first(places);
    InitModel(first, &slow);
    ASSERT_TRUE(WaitUntil([&] { return slow.entered.load(); }));
    {
        CTestInstance second(places);
        InitModel(second, &factory);
    }
    slow.mayLeave.Set();
    WaitForLoop();
    EXPECT_EQ(factory.calls, 0);
    EXPECT_EQ(slow.calls, 1);
}

TEST(CAudioPluginModel, AnInstanceThatGoesWaitsForItsRunningLoad)
{
    const CTestPlaces places;
    places.WriteData("Model/model.model", "<MODEL/>");
    CSmallFactory factory;
    factory.holdUp = true;
    auto instance = std::make_unique<CTestInstance>(places);
    InitModel(*instance, &factory);
    ASSERT_TRUE(WaitUntil([&] { return factory.entered.load(); }));
    Tests::CThreadState state;
    std::thread end(
        [&]
        {
            state.AboutToWait();
            instance.reset();
        });
    EXPECT_TRUE(state.WaitUntilAsleep());
    EXPECT_EQ(factory.calls, 0);
    factory.mayLeave.Set();
    end.join();
    EXPECT_EQ(factory.calls, 1);
}

TEST(CAudioPluginModel, KeepsTheStateOfAModelThatIsNotThere)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    CAudioPluginModel& model = instance.internals.GetModel();
    CMemDataObject state;
    state.Write("number", 5);
    WriteObject(state, "state", [](IWriteDataStream& stream) { return stream.Write("version", 2); });
    EXPECT_TRUE(model.Deserialize(state));
    EXPECT_EQ(TextOf(model), "<M><number>5</number><state><version>2</version></state></M>");
    model.DropKeptState();
    EXPECT_EQ(TextOf(model), "<M />");
}

TEST(CAudioPluginModel, HandsTheKeptStateToTheModelThatComes)
{
    const CTestPlaces places;
    places.WriteData("Model/model.model", "<MODEL/>");
    CSmallFactory factory;
    CTestInstance instance(places);
    CAudioPluginModel& model = instance.internals.GetModel();
    CMemDataObject state;
    state.Write("number", 5);
    model.Deserialize(state);
    InitModel(instance, &factory);
    WaitForLoop();
    EXPECT_EQ(NumberOf(model), 5);
    EXPECT_EQ(TextOf(model), "<M><number>5</number></M>");
    CMemDataObject other;
    other.Write("number", 6);
    model.Deserialize(other);
    EXPECT_EQ(NumberOf(model), 6);
    EXPECT_EQ(TextOf(model), "<M><number>6</number></M>");
}

TEST(CAudioPluginModel, AModelThatIsLoadedAgainTakesTheStateOver)
{
    const CTestPlaces places;
    places.WriteData("Model/model.model", "<MODEL/>");
    CSmallFactory factory;
    CTestInstance instance(places);
    CAudioPluginModel& model = instance.internals.GetModel();
    InitModel(instance, &factory);
    WaitForLoop();
    dynamic_cast<CSmallModel&>(*model.GetSkinModel()).number = 9;
    model.Load();
    WaitForLoop();
    EXPECT_EQ(factory.calls, 2);
    EXPECT_EQ(NumberOf(model), 9);
}

TEST(CAttachedState, AnEditorTakesTheStateAndLeavesItBehind)
{
    CAttachedState state;
    CMemDataObject saved;
    saved.Write("number", 4);
    state.Deserialize(saved);
    CSmallModel editor;
    state.Attach(editor);
    EXPECT_EQ(editor.number, 4);
    editor.number = 8;
    state.Detach();
    editor.number = 0;
    CMemDataObject again;
    EXPECT_TRUE(state.Serialize(again));
    CSmallModel next;
    state.Attach(next);
    EXPECT_EQ(next.number, 8);
    state.Detach();
}

TEST(CAttachedState, ASecondObjectTakesOverFromTheFirst)
{
    CAttachedState state;
    CSmallModel first;
    CSmallModel second;
    state.Attach(first);
    first.number = 6;
    state.Attach(second);
    EXPECT_EQ(second.number, 6);
    first.number = 7;
    CMemDataObject saved;
    state.Serialize(saved);
    EXPECT_EQ(ReadAs<int>(saved, "number"), 6);
    state.Detach();
}

TEST(CAttachedState, WithNothingKeptAnObjectStartsReset)
{
    CAttachedState state;
    CSmallModel editor;
    editor.number = 7;
    state.Attach(editor);
    EXPECT_EQ(editor.number, 1);
    state.Detach();
    state.Detach();
}

} // namespace
