#include "Mirel/Audio/DSP/CProcessInfo.h"

namespace Mirel::Audio::DSP
{

namespace
{

template <class Info, class Collection>
void Fill(Collection& records, int count, const Info* source)
{
    for (int i = 0; i < count; ++i)
    {
        records.Add(source == nullptr ? Info("", "") : source[i]);
    }
}

} // namespace

CProcessInfo::CProcessInfo(int inputCount, int outputCount, const CInputInfo* inputs_,
                           const COutputInfo* outputs_)
{
    Fill(inputs, inputCount, inputs_);
    Fill(outputs, outputCount, outputs_);
}

} // namespace Mirel::Audio::DSP
