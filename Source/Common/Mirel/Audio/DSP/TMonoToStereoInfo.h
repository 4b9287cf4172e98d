#pragma once

#include "Mirel/Containers/TDynamicCollection.h"

#include <string>

namespace Mirel::Audio::DSP
{

/// The descriptions of a stereo filter that is made of two mono ones: all entries once with " (L)" behind
/// their names, then all again with " (R)". A null name counts as empty.
template <class Info, class I>
class TMonoToStereoInfo : public Containers::TDynamicCollection<Info, I>
{
public:
    explicit TMonoToStereoInfo(const Containers::TIConstVector<I>& mono)
    {
        for (const char* suffix : {" (L)", " (R)"})
        {
            for (int i = 0; i < mono.GetCount(); ++i)
            {
                Info& info = this->Add();
                info.CopyFrom(mono[i]);
                const char* name = mono[i].GetName();
                info.SetName((std::string(name == nullptr ? "" : name) + suffix).c_str());
            }
        }
    }
};

} // namespace Mirel::Audio::DSP
