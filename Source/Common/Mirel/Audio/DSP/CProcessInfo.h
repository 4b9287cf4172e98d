#pragma once

#include "Mirel/Containers/TDynamicCollection.h"
#include "Mirel/DataModel/CObjectInfo.h"

#include <utility>

namespace Mirel::Audio::DSP
{

/// The description of one audio input of a filter.
class CInputInfo : public DataModel::CObjectInfo
{
public:
    using CObjectInfo::CObjectInfo;
};

/// The description of one audio output of a filter.
class COutputInfo : public DataModel::CObjectInfo
{
public:
    using CObjectInfo::CObjectInfo;
};

/// Which audio a filter takes and gives, one record a channel.
class CProcessInfo
{
public:
    using CInputs = Containers::TDynamicCollection<CInputInfo, DataModel::IObjectInfo>;
    using COutputs = Containers::TDynamicCollection<COutputInfo, DataModel::IObjectInfo>;

    /// The records are copied from the arrays of as many entries; without an array they are nameless.
    CProcessInfo(int inputCount, int outputCount, const CInputInfo* inputs_ = nullptr,
                 const COutputInfo* outputs_ = nullptr);

    /// Takes the records over.
    CProcessInfo(CInputs inputs_, COutputs outputs_)
        : inputs(std::move(inputs_)),
          outputs(std::move(outputs_))
    {
    }

    const CInputs& GetInputs() const { return inputs; }
    const COutputs& GetOutputs() const { return outputs; }

private:
    CInputs inputs;
    COutputs outputs;
};

} // namespace Mirel::Audio::DSP
