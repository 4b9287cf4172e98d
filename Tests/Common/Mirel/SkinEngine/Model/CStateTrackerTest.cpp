#include "Mirel/SkinEngine/Model/CStateTracker.h"

#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/CConstantFunction.h"
#include "StateRig.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;
using namespace Tests;
using Math::CConstantBinaryFunction;
using Math::CConstantFunction;

TEST(CStateTracker, AChangeOfALinkedObjectMarksTheStateAsModified)
{
    CSkinModel model;
    CCaptureParam& param = AddParam(model, "p");
    CCaptureCurve& curve = AddCurve(model, "c");
    CCaptureSurface& surface = AddSurface(model, "s");
    CCaptureString& string = AddString(model, "t");
    CTestCount& count = AddCount(model, "n");
    for (const char* id : {"p", "c", "s", "t", "n"})
    {
        model.MakePersistent(id, true);
    }
    CEventCounter events(model.GetStateModifiedEventProvider());
    const std::vector<std::function<void()>> changes = {
        [&] { param.SetValue(1.0f); },
        [&] { curve.SetValue(CConstantFunction(1.0f)); },
        [&] { surface.SetValue(CConstantBinaryFunction(1.0f)); },
        [&] { string.SetValue("text"); },
        [&] { count.SetCount(1); },
    };
    for (const auto& change : changes)
    {
        EXPECT_FALSE(model.IsStateModified());
        change();
        EXPECT_TRUE(model.IsStateModified());
        EXPECT_EQ(events.Take(), 1);
        model.SetStateModified(false);
        EXPECT_EQ(events.Take(), 1);
    }
}

TEST(CStateTracker, AnObjectThatIsNotLinkedMarksNothing)
{
    CSkinModel model;
    CCaptureParam& param = AddParam(model, "p");
    model.MakePersistent("p", false);
    param.SetValue(1.0f);
    EXPECT_FALSE(model.IsStateModified());
}

TEST(CStateTracker, RestoringAStateIsNoModification)
{
    CSkinModel model;
    CCaptureParam& param = AddParam(model, "p");
    model.MakePersistent("p", true);
    param.SetValue(1.0f);
    CSkinModelState state;
    state.params.push_back({"p", 2.0f});
    model.RestoreState(state);
    EXPECT_EQ(param.GetValue(), 2.0f);
    EXPECT_FALSE(model.IsStateModified());
}

TEST(CStateTracker, ARemovedObjectIsFollowedNoLonger)
{
    CCaptureParam param;
    param.GetInfo().SetMax(1.0f);
    CSkinModel model;
    model.AddParam("p", &param, objectItself, false);
    model.MakePersistent("p", true);
    EXPECT_TRUE(model.RemoveObject("p"));
    param.SetValue(1.0f);
    EXPECT_FALSE(model.IsStateModified());
}

} // namespace
} // namespace Mirel::SkinEngine
