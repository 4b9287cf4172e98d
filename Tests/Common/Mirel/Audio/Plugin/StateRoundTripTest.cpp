// Any state comes back from every form that carries it.

#include "CTestInstance.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Plugins/Oscilloscope/CreateTopLevelFilter.h"

#include <gtest/gtest.h>
#include <memory>
#include <rapidcheck/gtest.h>
#include <string>
#include <utility>

using namespace Mirel::Audio::Plugin;
using Mirel::Serialization::CMemDataObject;
using Tests::CTestInstance;
using Tests::CTestPlaces;

namespace
{

/// Any settings that a user could make.
void Shuffle(CMIDICCSetting& setting)
{
    setting.SetChannel(*rc::gen::inRange(0, 17));
    setting.SetNumber(*rc::gen::inRange(0, 128));
    setting.SetEnabled(*rc::gen::arbitrary<bool>());
    setting.SetCurve(*rc::gen::inRange(0, 13));
    setting.SetMin(*rc::gen::arbitrary<float>());
    setting.SetMax(*rc::gen::arbitrary<float>());
}

void Shuffle(CAudioPluginInternalsBase& internals)
{
    const auto& infos = internals.GetInputParamsInfo();
    for (int i = 0; i < infos.GetCount(); ++i)
    {
        const float part = static_cast<float>(*rc::gen::inRange(0, 1000001)) * 1e-6f;
        internals.SetInputValue(i, infos[i].GetMin() + (infos[i].GetMax() - infos[i].GetMin()) * part);
    }
    for (auto& each : internals.GetInputMIDISettings())
    {
        Shuffle(each);
    }
    for (auto& each : internals.GetOutputMIDISettings())
    {
        Shuffle(each);
    }
    for (auto& each : internals.GetOutputAutomationSettings())
    {
        each.SetEnabled(*rc::gen::arbitrary<bool>());
    }
    internals.GetUseDefaultInputMIDI().SetValue(*rc::gen::arbitrary<bool>());
    internals.GetUseDefaultOutputMIDI().SetValue(*rc::gen::arbitrary<bool>());
    internals.GetUseDefaultOutputAutomation().SetValue(*rc::gen::arbitrary<bool>());
    internals.SetCurrentPresetName(*rc::gen::element<std::string>("", "Plain", "a & b <c>", "  blanks  ",
                                                                  "\xC3\xA9t\xC3\xA9", "&#x41;"));
}

bool Same(float a, float b)
{
    return !(a < b || a > b);
}

void AssertSame(const CMIDICCSetting& a, const CMIDICCSetting& b)
{
    RC_ASSERT(a.GetChannel() == b.GetChannel());
    RC_ASSERT(a.GetNumber() == b.GetNumber());
    RC_ASSERT(a.IsEnabled() == b.IsEnabled());
    RC_ASSERT(a.GetCurve() == b.GetCurve());
    RC_ASSERT(Same(a.GetMin(), b.GetMin()));
    RC_ASSERT(Same(a.GetMax(), b.GetMax()));
}

template <class List>
void AssertSameMIDI(const List& a, const List& b)
{
    RC_ASSERT(a.GetCount() == b.GetCount());
    for (int i = 0; i < a.GetCount(); ++i)
    {
        AssertSame(a[i], b[i]);
    }
}

/// All that a state carries; the preset's lists only where they apply.
void AssertSame(CAudioPluginInternalsBase& a, CAudioPluginInternalsBase& b)
{
    RC_ASSERT(a.GetCurrentPresetName() == b.GetCurrentPresetName());
    for (int i = 0; i < a.GetInputParamsInfo().GetCount(); ++i)
    {
        RC_ASSERT(Same(a.GetInputValues()[i].GetValue(), b.GetInputValues()[i].GetValue()));
    }
    RC_ASSERT(a.GetUseDefaultInputMIDI().GetValue() == b.GetUseDefaultInputMIDI().GetValue());
    RC_ASSERT(a.GetUseDefaultOutputMIDI().GetValue() == b.GetUseDefaultOutputMIDI().GetValue());
    RC_ASSERT(a.GetUseDefaultOutputAutomation().GetValue() == b.GetUseDefaultOutputAutomation().GetValue());
    AssertSameMIDI(a.GetActiveInputMIDISettings(), b.GetActiveInputMIDISettings());
    AssertSameMIDI(a.GetActiveOutputMIDISettings(), b.GetActiveOutputMIDISettings());
    for (int i = 0; i < a.GetActiveOutputAutomationSettings().GetCount(); ++i)
    {
        RC_ASSERT(a.GetActiveOutputAutomationSettings()[i].IsEnabled() ==
                  b.GetActiveOutputAutomationSettings()[i].IsEnabled());
    }
}

RC_GTEST_PROP(State, MakesAnotherInstanceEqualInEveryValue, ())
{
    static const CTestPlaces places; // one folder for all cases: they write nothing to it
    CTestInstance first(places);
    CTestInstance second(places);
    Shuffle(first.internals);
    Shuffle(second.internals);
    const std::string saved = first.SaveText();
    RC_ASSERT(second.LoadText(saved));
    AssertSame(first.internals, second.internals);
    RC_ASSERT(second.SaveText() == saved);
}

RC_GTEST_PROP(State, SavedLoadedAndSavedAgainHasTheSameBytes, ())
{
    static const CTestPlaces places; // one folder for all cases: they write nothing to it
    CTestInstance instance(places);
    Shuffle(instance.internals);
    const std::string saved = instance.SaveText();
    RC_ASSERT(instance.LoadText(saved));
    RC_ASSERT(instance.SaveText() == saved);
}

RC_GTEST_PROP(State, GoesThroughMemoryAsWell, ())
{
    static const CTestPlaces places; // one folder for all cases: they write nothing to it
    CTestInstance first(places);
    CTestInstance second(places);
    Shuffle(first.internals);
    Shuffle(second.internals);
    CMemDataObject memory;
    RC_ASSERT(first.internals.Serialize(memory));
    RC_ASSERT(second.internals.Deserialize(memory));
    AssertSame(first.internals, second.internals);
}

RC_GTEST_PROP(State, OfTheOscilloscopeComesBack, ())
{
    static const CTestPlaces places; // one folder for all cases: they write nothing to it
    const auto make = []
    {
        auto filter = PluginsFilters::CreateTopLevelFilter();
        auto settings = Tests::MakeSettings(places, *filter);
        return std::make_unique<CAudioPluginInternalsBase>(std::move(filter), std::move(settings), 0);
    };
    const auto first = make();
    const auto second = make();
    Shuffle(*first);
    Shuffle(*second);
    std::string saved;
    RC_ASSERT(StateToText(*first, saved));
    RC_ASSERT(StateFromText(saved.data(), saved.size(), *second));
    AssertSame(*first, *second);
    std::string again;
    RC_ASSERT(StateToText(*second, again));
    RC_ASSERT(again == saved);
}

} // namespace
