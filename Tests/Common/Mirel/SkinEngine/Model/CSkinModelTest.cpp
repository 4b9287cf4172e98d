#include "Mirel/SkinEngine/Model/CSkinModel.h"

#include "Mirel/Core/TCommand.h"
#include "Mirel/Core/TDestroyAdapter.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/DataModel/Objects/CAction.h"
#include "Mirel/DataModel/Objects/CCaptureCurveValueParam.h"
#include "Mirel/DataModel/Objects/CCaptureParamLink.h"
#include "Mirel/DataModel/Objects/CCaptureParamTimerProxy.h"
#include "Mirel/DataModel/Objects/CCaptureParamWrapper.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "StateRig.h"
#include "Support/EventCounter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Tests::AddParam;

std::vector<std::string> IdsOf(const ISkinDynamicObjectsDictionary& dictionary)
{
    std::vector<std::string> ids;
    const std::unique_ptr<ISkinDynamicObjectsConstIterator> entry(dictionary.CreateIterator());
    for (; entry->IsValid(); entry->Next())
    {
        ids.emplace_back(entry->GetId());
    }
    return ids;
}

/// Counts its deaths.
template <class T>
struct TMortal : T
{
    explicit TMortal(int* deaths_) : deaths(deaths_) {}
    TMortal(const TMortal&) = delete;
    TMortal& operator=(const TMortal&) = delete;
    ~TMortal() override { ++*deaths; }
    int* deaths;
};

CParamInfo Gain()
{
    return {2, -60.0f, 6.0f, -3.0f, "Gain", "dB", ""};
}

TEST(CSkinModel, PlaceholdersTellWhatIsMissing)
{
    CSkinModel model;
    EXPECT_STREQ(model.GetParamNotFound().GetInfo().GetName(), "Parameter not found");
    EXPECT_STREQ(model.GetParamNotFound().GetInfo().GetUnit(), "?");
    EXPECT_STREQ(model.GetCurveNotFound().GetInfo().GetName(), "Curve not found");
    EXPECT_STREQ(model.GetSurfaceNotFound().GetInfo().GetName(), "Surface not found");
    EXPECT_STREQ(model.GetStringNotFound().GetInfo().GetName(), "String not found");
    EXPECT_STREQ(model.GetActionNotFound().GetInfo().GetName(), "Action not found");
    model.GetActionNotFound().Execute();
    EXPECT_THAT(IdsOf(model.GetObjects()), IsEmpty());
}

TEST(CSkinModel, EachAdderEntersItsKindAndAccess)
{
    CSkinModel model;
    EXPECT_TRUE(model.AddConstParam("cp", new CCaptureParam, objectItself, true));
    EXPECT_TRUE(model.AddParam("p", new CCaptureParam, objectItself, true));
    EXPECT_TRUE(model.AddConstCurve("cc", new CCaptureCurve, objectItself, true));
    EXPECT_TRUE(model.AddCurve("c", new CCaptureCurve, objectItself, true));
    EXPECT_TRUE(model.AddConstSurface("cs", new CCaptureSurface, objectItself, true));
    EXPECT_TRUE(model.AddSurface("s", new CCaptureSurface, objectItself, true));
    EXPECT_TRUE(model.AddConstString("ct", new CCaptureString, objectItself, true));
    EXPECT_TRUE(model.AddString("t", new CCaptureString, objectItself, true));
    EXPECT_TRUE(model.AddAction("a", new CAction("Go"), objectItself, true));
    auto& objects = model.GetObjects();
    EXPECT_NE(FindObject<IConstCaptureParam>(objects, "cp"), nullptr);
    EXPECT_EQ(FindObject<ICaptureParam>(objects, "cp"), nullptr);
    EXPECT_NE(FindObject<IConstCaptureParam>(objects, "p"), nullptr);
    EXPECT_NE(FindObject<ICaptureParam>(objects, "p"), nullptr);
    EXPECT_NE(FindObject<IConstCaptureCurve>(objects, "cc"), nullptr);
    EXPECT_EQ(FindObject<ICaptureCurve>(objects, "cc"), nullptr);
    EXPECT_NE(FindObject<ICaptureCurve>(objects, "c"), nullptr);
    EXPECT_NE(FindObject<IConstCaptureSurface>(objects, "cs"), nullptr);
    EXPECT_EQ(FindObject<ICaptureSurface>(objects, "cs"), nullptr);
    EXPECT_NE(FindObject<ICaptureSurface>(objects, "s"), nullptr);
    EXPECT_NE(FindObject<IConstCaptureString>(objects, "ct"), nullptr);
    EXPECT_EQ(FindObject<ICaptureString>(objects, "ct"), nullptr);
    EXPECT_NE(FindObject<ICaptureString>(objects, "t"), nullptr);
    EXPECT_STREQ(FindObject<IConstAction>(objects, "a")->GetInfo().GetName(), "Go");
    EXPECT_EQ(FindObject<IConstCaptureParam>(objects, "c"), nullptr);
}

TEST(CSkinModel, AnObjectThatWorksAtAPeriodOrHasASwitchShowsIt)
{
    CCaptureParam source;
    CSkinModel model;
    model.AddConstParam("timed", new CConstCaptureParamTimerProxy(source, nullptr), objectItself, true);
    AddParam(model, "plain");
    auto* timed = FindObject<Core::IRefreshTime>(model.GetObjects(), "timed");
    ASSERT_NE(timed, nullptr);
    EXPECT_EQ(timed->GetRefreshTime(), 50);
    EXPECT_NE(FindObject<Core::IEnable>(model.GetObjects(), "timed"), nullptr);
    EXPECT_EQ(FindObject<Core::IRefreshTime>(model.GetObjects(), "plain"), nullptr);
}

TEST(CSkinModel, AnOwnedObjectThatNothingWantsIsDestroyedAtOnce)
{
    int deaths = 0;
    CSkinModel model;
    EXPECT_TRUE(model.AddParam("p", new TMortal<CCaptureParam>(&deaths), 0, true));
    EXPECT_EQ(deaths, 1);
    EXPECT_TRUE(model.AddCurve("c", new TMortal<CCaptureCurve>(&deaths), 0, true));
    EXPECT_TRUE(model.AddConstSurface("s", new TMortal<CCaptureSurface>(&deaths), 0, true));
    EXPECT_TRUE(model.AddString("t", new TMortal<CCaptureString>(&deaths), 0, true));
    EXPECT_TRUE(model.AddAction("a", new TMortal<CAction>(&deaths), 0, true));
    EXPECT_EQ(deaths, 5);
    TMortal<CCaptureParam> borrowed(&deaths);
    EXPECT_TRUE(model.AddParam("b", &borrowed, 0, false));
    EXPECT_EQ(deaths, 5);
    EXPECT_THAT(IdsOf(model.GetObjects()), IsEmpty());
}

TEST(CSkinModel, AnObjectWantedForItsRangeAloneLivesWithoutAName)
{
    int deaths = 0;
    {
        CSkinModel model;
        auto* param = new TMortal<CCaptureParam>(&deaths);
        param->GetInfo() = Gain();
        EXPECT_TRUE(model.AddParam("gain", param, paramMax, true));
        EXPECT_THAT(IdsOf(model.GetObjects()), ElementsAre("gain.max"));
        EXPECT_EQ(deaths, 0);
    }
    EXPECT_EQ(deaths, 1);
}

TEST(CSkinModel, BorrowedObjectsStayAlive)
{
    int deaths = 0;
    TMortal<CCaptureParam> param(&deaths);
    {
        CSkinModel model;
        model.AddParam("gain", &param, allObjectFlags, false);
        EXPECT_EQ(model.GetObjects().GetCount(), 5);
    }
    EXPECT_EQ(deaths, 0);
}

TEST(CSkinModel, ASecondObjectOfTheSameIdIsTakenOverAndReported)
{
    int deaths = 0;
    CoreUtilities::CMemMessageLog log;
    {
        CSkinModel model(&log);
        CCaptureParam& first = AddParam(model, "gain");
        EXPECT_FALSE(model.AddParam("gain", new TMortal<CCaptureParam>(&deaths), allObjectFlags, true));
        EXPECT_EQ(FindObject<ICaptureParam>(model.GetObjects(), "gain"), &first);
        // Nothing of the second stands under the first one's name.
        EXPECT_THAT(IdsOf(model.GetObjects()), ElementsAre("gain"));
        ASSERT_EQ(log.GetMessages().size(), 1U);
        EXPECT_EQ(log.GetMessages()[0].text,
                  "'gain' : this object identifier already exists, use another identifier.");
        // Whoever connected to it before must find it alive.
        EXPECT_EQ(deaths, 0);
    }
    EXPECT_EQ(deaths, 1);
}

TEST(CSkinModel, NullsAreRefused)
{
    CSkinModel model;
    EXPECT_FALSE(model.AddParam("p", nullptr, objectItself, true));
    EXPECT_FALSE(model.AddParam(nullptr, new CCaptureParam, objectItself, true));
    EXPECT_FALSE(model.AddObject("o", nullptr, true));
    EXPECT_FALSE(model.AddObject(nullptr, new Runtime::CDynamicObject, true));
    EXPECT_FALSE(model.MakePersistent(nullptr, true));
    EXPECT_FALSE(model.Expose(nullptr));
    EXPECT_FALSE(model.RemoveObject(nullptr));
}

// Sub-objects.

TEST(CSkinModel, EachFlagOfAParamMakesItsSubObject)
{
    struct CCase
    {
        int flags;
        const char* id;
    };
    for (const CCase& row : {CCase{1, "gain"}, CCase{2, "gain.info"}, CCase{4, "gain.default"},
                             CCase{8, "gain.min"}, CCase{16, "gain.max"}})
    {
        CSkinModel model;
        EXPECT_TRUE(model.AddConstParam("gain", new CCaptureParam(Gain()), row.flags, true));
        EXPECT_THAT(IdsOf(model.GetObjects()), ElementsAre(row.id));
    }
}

TEST(CSkinModel, TheSubObjectsOfAParamTellItsDescription)
{
    CSkinModel model;
    auto* gain = new CCaptureParam(Gain());
    ASSERT_TRUE(model.AddParam("gain", gain, allObjectFlags, true));
    EXPECT_EQ(FindObject<IConstParamInfo>(model.GetObjects(), "gain.info"), &std::as_const(*gain).GetInfo());
    struct CCase
    {
        const char* id;
        float value;
        const char* name;
    };
    for (const CCase& row : {CCase{"gain.default", -3.0f, "Gain Default"},
                             CCase{"gain.min", -60.0f, "Gain Min"}, CCase{"gain.max", 6.0f, "Gain Max"}})
    {
        const auto* limit = FindObject<IConstCaptureParam>(model.GetObjects(), row.id);
        ASSERT_NE(limit, nullptr) << row.id;
        EXPECT_EQ(limit->GetValue(), row.value);
        EXPECT_STREQ(limit->GetInfo().GetName(), row.name);
        EXPECT_EQ(limit->GetInfo().GetMin(), -3.4028235e38f);
        EXPECT_EQ(limit->GetInfo().GetMax(), 3.4028235e38f);
        EXPECT_EQ(FindObject<ICaptureParam>(model.GetObjects(), row.id), nullptr);
    }
    gain->GetInfo().SetMax(12.0f);
    EXPECT_EQ(FindObject<IConstCaptureParam>(model.GetObjects(), "gain.max")->GetValue(), 6.0f);
}

TEST(CSkinModel, CurvesAndSurfacesTellTheirAxes)
{
    CSkinModel model;
    auto* curve = new CCaptureCurve;
    auto* surface = new CCaptureSurface;
    EXPECT_TRUE(model.AddCurve("c", curve, objectInfo, true));
    EXPECT_TRUE(model.AddConstSurface("s", surface, objectItself | objectInfo, true));
    EXPECT_THAT(IdsOf(model.GetObjects()),
                UnorderedElementsAre("c.x_info", "c.y_info", "s", "s.x_info", "s.y_info", "s.z_info"));
    auto& objects = model.GetObjects();
    EXPECT_EQ(FindObject<IConstParamInfo>(objects, "c.y_info"), &std::as_const(*curve).GetInfo().GetYInfo());
    EXPECT_EQ(FindObject<IConstParamInfo>(objects, "s.z_info"),
              &std::as_const(*surface).GetInfo().GetZInfo());
}

TEST(CSkinModel, StringsAndActionsHaveNoSubObjects)
{
    CSkinModel model;
    model.AddString("t", new CCaptureString, allObjectFlags, true);
    model.AddAction("a", new CAction, allObjectFlags, true);
    EXPECT_THAT(IdsOf(model.GetObjects()), ElementsAre("t", "a"));
}

// Persistence and exposure.

TEST(CSkinModel, OnlyKnownObjectsBecomePersistentAndOnlyOnce)
{
    CSkinModel model;
    AddParam(model, "gain");
    EXPECT_TRUE(model.MakePersistent("gain", true));
    EXPECT_FALSE(model.MakePersistent("gain", true));
    EXPECT_FALSE(model.MakePersistent("nobody", true));
    EXPECT_THAT(IdsOf(model.GetPersistentObjects()), ElementsAre("gain"));
    EXPECT_THAT(IdsOf(model.GetExposedObjects()), IsEmpty());
}

TEST(CSkinModel, OnlyKnownObjectsAreExposedAndOnlyOnce)
{
    CSkinModel model;
    AddParam(model, "gain");
    EXPECT_TRUE(model.Expose("gain"));
    EXPECT_FALSE(model.Expose("gain"));
    EXPECT_FALSE(model.Expose("nobody"));
    EXPECT_THAT(IdsOf(model.GetExposedObjects()), ElementsAre("gain"));
    EXPECT_THAT(IdsOf(model.GetPersistentObjects()), IsEmpty());
}

TEST(CSkinModel, ARefusedSecondPersistenceIsSilent)
{
    CoreUtilities::CMemMessageLog log;
    CSkinModel model(&log);
    AddParam(model, "gain");
    model.MakePersistent("gain", true);
    model.MakePersistent("gain", true);
    EXPECT_FALSE(log.HasMessages());
}

TEST(CSkinModel, RemovingTakesAnObjectOutOfAllDictionaries)
{
    CSkinModel model;
    CCaptureParam& gain = AddParam(model, "gain");
    model.MakePersistent("gain", true);
    model.Expose("gain");
    EXPECT_TRUE(model.RemoveObject("gain"));
    EXPECT_FALSE(model.RemoveObject("gain"));
    EXPECT_THAT(IdsOf(model.GetObjects()), IsEmpty());
    EXPECT_THAT(IdsOf(model.GetPersistentObjects()), IsEmpty());
    EXPECT_THAT(IdsOf(model.GetExposedObjects()), IsEmpty());
    // Links and widgets that found it before still hold it.
    gain.SetValue(1.0f);
}

TEST(CSkinModel, WhatLeavesTheDictionaryByAnyRoadIsNoLongerPersistentOrExposed)
{
    CSkinModel item;
    CSkinModel parent;
    AddParam(item, "bands[0].gain");
    parent.GetObjects().Add("bands[0].gain", item.GetObjects().Find("bands[0].gain"), false);
    EXPECT_TRUE(parent.MakePersistent("bands[0].gain", true));
    EXPECT_TRUE(parent.Expose("bands[0].gain"));
    bool owned = true;
    parent.GetObjects().Detach("bands[0].gain", owned);
    item.Clear();
    EXPECT_THAT(IdsOf(parent.GetPersistentObjects()), IsEmpty());
    EXPECT_THAT(IdsOf(parent.GetExposedObjects()), IsEmpty());
}

// Life.

TEST(CSkinModel, IsSwitchedOffUntilItIsCompleteAndFromItsEndOn)
{
    CSkinModel model;
    EXPECT_FALSE(model.GetEnable().IsEnabled());
    model.GetEnable().Enable(true);
    Tests::CEventCounter events(model.GetEnable().GetEnableChangedEventProvider());
    EXPECT_TRUE(std::as_const(model).GetEnable().IsEnabled());
    model.Clear();
    EXPECT_FALSE(model.GetEnable().IsEnabled());
    EXPECT_EQ(events.Take(), 1);
}

TEST(CSkinModel, HasTheIdOfItsFile)
{
    CSkinModel model;
    EXPECT_STREQ(model.GetId(), "");
    model.SetId("scope");
    EXPECT_STREQ(model.GetId(), "scope");
    model.SetId(nullptr);
    EXPECT_STREQ(model.GetId(), "");
}

TEST(CSkinModel, LinksLetGoBeforeTheirObjectsGo)
{
    CSkinModel model;
    auto* link = new CCaptureParamLink;
    // The link comes first and so would outlive its objects.
    model.AddLink(link);
    CCaptureParam& from = AddParam(model, "from");
    CCaptureParam& to = AddParam(model, "to");
    link->SetSource(&from);
    link->SetTarget(&to);
    link->Enable(true);
    from.BeginCapture();
    from.SetValue(2.0f);
    EXPECT_EQ(to.GetValue(), 2.0f);
    EXPECT_TRUE(to.IsCaptured());
    model.Clear();
}

TEST(CSkinModel, AnObjectThatShowsALinksSwitchGoesBeforeTheLink)
{
    CSkinModel model;
    auto* link = new CCaptureParamLink;
    struct CSwitchView : CCaptureParamWrapper, Core::ICommand
    {
        explicit CSwitchView(CCaptureParamLink& link_)
            : CCaptureParamWrapper(
                  CParamInfo(0, 0.0f, 1.0f, 0.0f, "", "", ""),
                  [&link_] { return link_.IsEnabled() ? 1.0f : 0.0f; },
                  [&link_](float value) { link_.Enable(value > 0.5f); },
                  &link_.GetEnableChangedEventProvider()),
              connection(&link_.GetEnableChangedEventProvider(), this)
        {
        }
        void Execute() override { ++changes; }
        int changes = 0;
        CoreUtilities::CCallbackHelper connection;
    };
    auto* view = new CSwitchView(*link);
    model.AddParam("link.enabled", view, objectItself, true);
    model.AddLink(link);
    view->SetValue(1.0f);
    EXPECT_TRUE(link->IsEnabled());
    EXPECT_EQ(view->changes, 1);
}

TEST(CSkinModel, ConnectionsLetGoOnceBeforeAnythingIsDestroyed)
{
    std::vector<std::string> trace;
    struct CTraced : Core::IDestroy
    {
        CTraced(std::vector<std::string>& trace_, std::string name_) : trace(trace_), name(std::move(name_))
        {
        }
        ~CTraced() override { trace.push_back("-" + name); }
        std::vector<std::string>& trace;
        std::string name;
    };
    {
        CSkinModel model;
        model.AddOwned(new CTraced(trace, "first"));
        model.AddOwned(new CTraced(trace, "second"));
        auto letGo = [&trace] { trace.emplace_back("let go"); };
        model.AddConnection(new TModelConnection<decltype(letGo)>(letGo));
        AddParam(model, "gain");
        struct CRemoval
        {
            void OnRemoved(const CDictionaryEntry& entry)
            {
                trace.push_back(std::string("name ") + entry.id);
            }
            std::vector<std::string>& trace;
        };
        CRemoval removal{trace};
        Core::TArgCommand<CRemoval, const CDictionaryEntry&> command(&removal, &CRemoval::OnRemoved);
        model.GetObjects().GetRemovedEventProvider().Connect(command);
        model.Clear();
        model.GetObjects().GetRemovedEventProvider().Disconnect(&command);
    }
    EXPECT_THAT(trace, ElementsAre("let go", "name gain", "-second", "-first"));
}

TEST(CSkinModel, AnObjectWithSourcesMayStandBeforeThem)
{
    CSkinModel model;
    auto* value = new CCaptureCurveValueParam;
    model.AddConstParam("value", value, objectItself, true);
    auto letGo = [value]
    {
        value->SetCurve(nullptr);
        value->SetX(nullptr);
    };
    model.AddConnection(new TModelConnection<decltype(letGo)>(letGo));
    value->SetCurve(&Tests::AddCurve(model, "curve"));
    value->SetX(&AddParam(model, "x"));
}

TEST(CSkinModel, AClearedModelCanBeFilledAgain)
{
    CSkinModel model;
    model.GetExposure().Use("gain");
    AddParam(model, "gain");
    model.MakePersistent("gain", true);
    model.Clear();
    EXPECT_THAT(IdsOf(model.GetObjects()), IsEmpty());
    EXPECT_THAT(IdsOf(model.GetPersistentObjects()), IsEmpty());
    AddParam(model, "gain").SetValue(1.0f);
    EXPECT_TRUE(model.MakePersistent("gain", true));
    EXPECT_EQ(model.GetExposure().GetParamFlags("gain"), 1);
}

} // namespace
} // namespace Mirel::SkinEngine
