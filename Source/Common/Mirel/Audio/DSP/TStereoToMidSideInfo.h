#pragma once

#include "Mirel/Containers/TDynamicCollection.h"

#include <string>
#include <string_view>

namespace Mirel::Audio::DSP
{

/// The descriptions of a filter whose two channels can be left and right or mid and side: in the names of a
/// stereo filter's descriptions "(L)" and "(R)" give way to two labels.
template <class Info, class I>
class TStereoToMidSideInfo : public Containers::TDynamicCollection<Info, I>
{
public:
    TStereoToMidSideInfo(const Containers::TIConstVector<I>& stereo, std::string_view label1,
                         std::string_view label2)
    {
        for (int i = 0; i < stereo.GetCount(); ++i)
        {
            Info& info = this->Add();
            info.CopyFrom(stereo[i]);
            std::string name = stereo[i].GetName();
            Replace(name, "(L)", label1);
            Replace(name, "(R)", label2);
            info.SetName(name.c_str());
        }
    }

private:
    static void Replace(std::string& text, std::string_view what, std::string_view with)
    {
        for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size()))
        {
            text.replace(at, what.size(), with);
        }
    }
};

} // namespace Mirel::Audio::DSP
