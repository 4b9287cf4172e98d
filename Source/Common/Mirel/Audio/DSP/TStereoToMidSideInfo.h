#pragma once

#include "Mirel/Containers/TDynamicCollection.h"

#include <string>
#include <string_view>

namespace Mirel::Audio::DSP
{

/// The descriptions of a filter whose two channels can be left and right or mid and side: in the names of a
/// stereo filter's descriptions "(L)" and "(R)" give way to two labels. A null name stays null.
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
            if (const char* name = stereo[i].GetName())
            {
                info.SetName(Relabel(name, label1, label2).c_str());
            }
        }
    }

private:
    /// One pass over the name, so that a label is never taken for a channel itself.
    static std::string Relabel(std::string_view name, std::string_view label1, std::string_view label2)
    {
        constexpr std::string_view left = "(L)";
        constexpr std::string_view right = "(R)";
        std::string relabelled;
        while (!name.empty())
        {
            if (name.starts_with(left))
            {
                relabelled += label1;
                name.remove_prefix(left.size());
            }
            else if (name.starts_with(right))
            {
                relabelled += label2;
                name.remove_prefix(right.size());
            }
            else
            {
                relabelled += name.front();
                name.remove_prefix(1);
            }
        }
        return relabelled;
    }
};

} // namespace Mirel::Audio::DSP
