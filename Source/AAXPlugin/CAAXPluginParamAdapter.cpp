#include "AAXPlugin/CAAXPluginParamAdapter.h"

namespace MirelExt::AAXPlugin
{

using Mirel::Core::IEventProvider;
using Mirel::DataModel::Objects::IConstParamInfo;

CAAXPluginParamAdapter::CAAXPluginParamAdapter(const IConstParamInfo& info_,
                                               Mirel::Core::TIValue<float>& value_, EDirection direction_,
                                               std::string identifier_, const CAudioThreadMark& audioThread_)
    : info(info_),
      value(value_),
      direction(direction_),
      identifier(std::move(identifier_)),
      audioThread(audioThread_)
{
}

std::unique_ptr<CAAXPluginParameter> CAAXPluginParamAdapter::MakeParameter(std::string_view prefix)
{
    auto made = std::make_unique<CAAXPluginParameter>(identifier, info, prefix, value);
    made->SetListener([this] { NotifyValueChanged(); });
    parameter = made.get();
    return made;
}

void CAAXPluginParamAdapter::SetValue(float newValue)
{
    if (parameter == nullptr)
    {
        value.SetValue(newValue);
    }
    else if (direction == EDirection::Input)
    {
        Post(newValue);
    }
    else
    {
        parameter->SetValue(newValue);
    }
}

void CAAXPluginParamAdapter::Automate(float newValue)
{
    if (parameter == nullptr)
    {
        value.SetValue(newValue);
        return;
    }
    Post(newValue);
}

void CAAXPluginParamAdapter::Post(float newValue)
{
    if (audioThread.IsOwn())
    {
        parameter->PostValueOfAudio(newValue);
    }
    else
    {
        parameter->PostValue(newValue);
    }
}

void CAAXPluginParamAdapter::BeginCapture()
{
    if (parameter != nullptr)
    {
        parameter->Touch();
    }
    CCapture::BeginCapture();
}

void CAAXPluginParamAdapter::EndCapture()
{
    if (parameter != nullptr)
    {
        parameter->Release();
    }
    CCapture::EndCapture();
}

IEventProvider& CAAXPluginParamAdapter::GetBeginCaptureEventProvider() const
{
    return CCapture::GetBeginCaptureEventProvider();
}

IEventProvider& CAAXPluginParamAdapter::GetEndCaptureEventProvider() const
{
    return CCapture::GetEndCaptureEventProvider();
}

void CAAXPluginParamAdapter::DeliverChange() const
{
    if (isChanged.exchange(false, std::memory_order_relaxed))
    {
        changed.Notify();
    }
}

void CAAXPluginParamAdapter::NotifyValueChanged()
{
    if (audioThread.IsOwn())
    {
        isChanged.store(true, std::memory_order_relaxed);
    }
    else
    {
        changed.Notify();
    }
}

} // namespace MirelExt::AAXPlugin
