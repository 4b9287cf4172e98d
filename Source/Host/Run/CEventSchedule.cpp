#include "Host/Run/CEventSchedule.h"

#include <algorithm>

namespace Host
{

namespace
{

template <class TEvent>
void SortByTime(std::vector<TEvent>& events)
{
    std::stable_sort(events.begin(), events.end(),
                     [](const TEvent& left, const TEvent& right) { return left.seconds < right.seconds; });
}

} // namespace

CEventSchedule::CEventSchedule(CHostInstance& instance_, const CRunOptions& options_)
    : instance(instance_),
      options(options_),
      parameters(instance.GetParameters()),
      midi(options.midi)
{
    SortByTime(midi);
}

bool CEventSchedule::Prepare(std::string& error)
{
    changes.clear();
    nextChange = 0;
    for (const CParamChange& change : options.changes)
    {
        const CParameterSet::CParameter* parameter = parameters.Find(change.name, error);
        double normalized = 0.0;
        if (parameter == nullptr || !parameters.ParseValue(*parameter, change.value, normalized, error))
        {
            return false;
        }
        changes.push_back({change.seconds, parameter->id, normalized});
    }
    const char* bypass = nullptr;
    if (options.bypass && instance.GetParameters().GetMasterBypassId(&bypass) == AAXResult::Ok)
    {
        changes.push_back({0.0, bypass, 1.0});
    }
    SortByTime(changes);
    ApplyChanges(0.0);
    ApplyMidi(0.0);
    return true;
}

void CEventSchedule::ApplyChanges(double seconds)
{
    for (; nextChange < changes.size() && changes[nextChange].seconds <= seconds; ++nextChange)
    {
        const CChange& change = changes[nextChange];
        instance.GetParameters().SetParameterValue(change.id.c_str(), change.normalized);
    }
}

void CEventSchedule::ApplyMidi(double seconds)
{
    for (; nextMidi < midi.size() && midi[nextMidi].seconds <= seconds; ++nextMidi)
    {
        const CMidiMessage& message = midi[nextMidi];
        if (CHostMidiNode* node = instance.GetMidiInput())
        {
            node->Add(MakeMidiEvent(0, message.status, message.data1, message.data2));
        }
    }
}

} // namespace Host
