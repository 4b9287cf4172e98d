#include "AAXPlugin/CAAXPluginGUI.h"

#include "AAXPlugin/CInProcessPlugin.h"
#include "AAXPlugin/CreationProcedures.h"
#include "AAXPlugin/Interface/QueryFor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace
{

using Mirel::Audio::Plugin::IAudioPluginEditor;
using Mirel::Audio::Plugin::SEditorPlace;
using Mirel::Core::CSize;
using testing::ElementsAre;
using testing::IsEmpty;
using Tests::InternalsOf;

/// What the test sees of editors that were made.
struct CEditorRecord
{
    std::vector<std::string> calls;
    CSize size = {640, 360};
    bool opens = true;
    std::function<void(int)> onInputRightClick;
};

class CScriptedEditor : public IAudioPluginEditor
{
public:
    explicit CScriptedEditor(CEditorRecord& record_) : record(record_) {}
    ~CScriptedEditor() override { record.calls.emplace_back("destroy"); }

    bool Open(const SEditorPlace& place) override
    {
        record.calls.push_back("open " + std::to_string(place.parentWindow) + " " +
                               std::to_string(place.scale));
        record.onInputRightClick = place.onInputRightClick;
        return record.opens;
    }
    void Show() override { record.calls.emplace_back("show"); }
    void Close() override { record.calls.emplace_back("close"); }
    CSize GetSize() const override { return record.size; }
    void SetSize(CSize size) override { record.size = size; }
    int GetDescriptor() const override { return 77; }
    void Pump() override { record.calls.emplace_back("pump"); }
    bool LoadSkin(const char* path) override
    {
        record.calls.push_back("skin " + std::string(path));
        return std::string(path) != "bad.xml";
    }
    std::string GetSkinMessages() const override { return "warning\t\ttext\n"; }
    bool CopyPicture(std::uint32_t* pixels, CSize size, int) override
    {
        pixels[0] = static_cast<std::uint32_t>(size.width * 1000 + size.height);
        return true;
    }

private:
    CEditorRecord& record;
};

class CContainer : public TACFObject<IAAXViewContainer>
{
public:
    std::int32_t type = AAXViewType::X11Window;
    std::uintptr_t view = 4711;
    std::vector<std::pair<float, float>> sizes; ///< Width and height.

    std::int32_t GetType(std::int32_t* out) override
    {
        *out = type;
        return 0;
    }
    std::int32_t GetView(std::uintptr_t* out) override
    {
        *out = view;
        return 0;
    }
    std::int32_t SetViewSize(const SAAXViewSize* size) override
    {
        sizes.emplace_back(size->width, size->height);
        return 0;
    }
    std::vector<std::string> rightClicks;
    std::int32_t HandleParameterRightClick(const char* parameterId) override
    {
        rightClicks.emplace_back(parameterId);
        return AAXResult::Unsupported;
    }
};

class CAAXPluginGUITest : public testing::Test
{
protected:
    CAAXPluginGUITest()
    {
        InternalsOf(*instance).GetEditor().SetFactory([this]
                                                      { return std::make_unique<CScriptedEditor>(record); });
    }

    void Initialize() { ASSERT_EQ(gui->Initialize(&instance->GetParameters()), 0); }

    std::vector<std::string> TakeCalls() { return std::exchange(record.calls, {}); }

    CEditorRecord record;
    Tests::CInProcessPlugin plugin;
    std::unique_ptr<Host::CHostInstance> instance = plugin.Make();
    TACFReference<CContainer> container = TACFReference<CContainer>::Adopt(new CContainer);
    TACFReference<IACFUnknown> made = TACFReference<IACFUnknown>::Adopt(MirelExt::AAXPlugin::CreateGui());
    TACFReference<AAX_IEffectGUI> gui = QueryFor<AAX_IEffectGUI>(made.Get());
    TACFReference<IEditorTools> tools = QueryFor<IEditorTools>(made.Get());
};

TEST_F(CAAXPluginGUITest, OpensTheEditorInTheNativeViewAndShowsIt)
{
    Initialize();
    EXPECT_EQ(gui->SetViewContainer(container.Get()), 0);
    EXPECT_THAT(TakeCalls(), ElementsAre("open 4711 0", "show"));
    EXPECT_EQ(gui->SetViewContainer(nullptr), 0);
    EXPECT_THAT(TakeCalls(), ElementsAre("close", "destroy"));
}

TEST_F(CAAXPluginGUITest, OpensWithoutAScreenInAnOffscreenView)
{
    Initialize();
    container->type = AAXViewType::Offscreen;
    container->view = 2;
    gui->SetViewContainer(container.Get());
    EXPECT_THAT(TakeCalls(), ElementsAre("open 0 2", "show"));
}

TEST_F(CAAXPluginGUITest, NothingOpensInAContainerWithoutAView)
{
    Initialize();
    container->view = 0;
    EXPECT_EQ(gui->SetViewContainer(container.Get()), 0);
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(CAAXPluginGUITest, AResizeOfTheEditorResizesTheHostsViewOnce)
{
    Initialize();
    gui->SetViewContainer(container.Get());
    record.size = {800, 500};
    InternalsOf(*instance).GetEditor().NotifyResized();
    EXPECT_THAT(container->sizes, ElementsAre(std::pair(800.0F, 500.0F)));
}

TEST_F(CAAXPluginGUITest, ASecondContainerLeavesOneResizeConnection)
{
    Initialize();
    gui->SetViewContainer(container.Get());
    gui->SetViewContainer(container.Get());
    InternalsOf(*instance).GetEditor().NotifyResized();
    EXPECT_EQ(container->sizes.size(), 1U);
}

TEST_F(CAAXPluginGUITest, NoResizeReachesTheHostAfterTheViewIsTakenDown)
{
    Initialize();
    gui->SetViewContainer(container.Get());
    gui->SetViewContainer(nullptr);
    InternalsOf(*instance).GetEditor().NotifyResized();
    EXPECT_THAT(container->sizes, IsEmpty());
}

TEST_F(CAAXPluginGUITest, ARightClickReachesTheHostUnderTheParametersIdentifier)
{
    Initialize();
    gui->SetViewContainer(container.Get());
    record.onInputRightClick(0);
    record.onInputRightClick(6);
    EXPECT_THAT(container->rightClicks, ElementsAre("MasterBypassID", "P6"));
    record.onInputRightClick(7);
    record.onInputRightClick(-1);
    EXPECT_EQ(container->rightClicks.size(), 2U) << "there is no such parameter";
}

TEST_F(CAAXPluginGUITest, TakingDownWithoutAnEditorDoesNothing)
{
    EXPECT_EQ(gui->SetViewContainer(nullptr), 0);
    Initialize();
    EXPECT_EQ(gui->SetViewContainer(nullptr), 0);
    EXPECT_EQ(gui->Uninitialize(), 0);
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(CAAXPluginGUITest, SizeIsTheEditorsAndZeroWithoutOne)
{
    SAAXViewSize size = {1.0F, 1.0F};
    EXPECT_EQ(gui->GetViewSize(nullptr), -20004);
    EXPECT_EQ(gui->GetViewSize(&size), 0); // no internals to be found
    EXPECT_EQ(size.width, 0.0F);
    EXPECT_EQ(size.height, 0.0F);
    Initialize();
    gui->SetViewContainer(container.Get());
    EXPECT_EQ(gui->GetViewSize(&size), 0);
    EXPECT_EQ(size.width, 640.0F);
    EXPECT_EQ(size.height, 360.0F);
}

TEST_F(CAAXPluginGUITest, WithoutAParametersObjectTheViewStaysEmpty)
{
    EXPECT_EQ(gui->Initialize(container.Get()), -20004);
    EXPECT_EQ(gui->Initialize(nullptr), -20004);
    gui->SetViewContainer(container.Get());
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(CAAXPluginGUITest, AnEditorThatDoesNotOpenIsGone)
{
    record.opens = false;
    Initialize();
    EXPECT_EQ(gui->SetViewContainer(container.Get()), 0);
    EXPECT_THAT(TakeCalls(), ElementsAre("open 4711 0", "destroy"));
    int descriptor = -1;
    EXPECT_EQ(tools->GetDescriptor(&descriptor), -20004);
}

TEST_F(CAAXPluginGUITest, TheLastReferenceClosesAnEditorThatWasLeftOpen)
{
    Initialize();
    gui->SetViewContainer(container.Get());
    TakeCalls();
    tools = {};
    gui = {};
    made = {};
    EXPECT_THAT(TakeCalls(), ElementsAre("close", "destroy"));
}

TEST_F(CAAXPluginGUITest, TheHostsTimePumpsTheEditor)
{
    Initialize();
    EXPECT_EQ(gui->TimerWakeup(), 0);
    gui->SetViewContainer(container.Get());
    TakeCalls();
    EXPECT_EQ(gui->TimerWakeup(), 0);
    EXPECT_THAT(TakeCalls(), ElementsAre("pump"));
}

TEST_F(CAAXPluginGUITest, ToolsReachTheOpenEditorAndFailWithoutOne)
{
    Initialize();
    int descriptor = -1;
    std::uint32_t pixel = 0;
    const char* messages = nullptr;
    EXPECT_EQ(tools->GetDescriptor(&descriptor), -20004);
    EXPECT_EQ(tools->CopyPicture(&pixel, 1, 1, 4), -20004);
    EXPECT_EQ(tools->LoadSkin("good.xml"), -20004);
    EXPECT_EQ(tools->GetSkinMessages(&messages), -20004);
    EXPECT_EQ(tools->SetViewSize(10, 10), -20004);
    gui->SetViewContainer(container.Get());
    TakeCalls();
    EXPECT_EQ(tools->GetDescriptor(&descriptor), 0);
    EXPECT_EQ(descriptor, 77);
    EXPECT_EQ(tools->CopyPicture(&pixel, 3, 2, 12), 0);
    EXPECT_EQ(pixel, 3002U);
    EXPECT_EQ(tools->LoadSkin("good.xml"), 0);
    EXPECT_EQ(tools->LoadSkin("bad.xml"), -20004);
    EXPECT_EQ(tools->GetSkinMessages(&messages), 0);
    EXPECT_STREQ(messages, "warning\t\ttext\n");
    EXPECT_EQ(tools->SetViewSize(300, 200), 0);
    EXPECT_EQ(record.size, (CSize{300, 200}));
    EXPECT_EQ(tools->SetViewSize(0, 200), -20004);
    EXPECT_EQ(tools->GetDescriptor(nullptr), -20004);
    EXPECT_EQ(tools->CopyPicture(nullptr, 1, 1, 4), -20004);
    EXPECT_EQ(tools->LoadSkin(nullptr), -20004);
    EXPECT_EQ(tools->GetSkinMessages(nullptr), -20004);
}

} // namespace
