#pragma once

#include "AAXPlugin/CAAXPluginParameter.h"
#include "AAXPlugin/CAudioThreadMark.h"
#include "Mirel/Audio/Plugin/PluginParams.h"
#include "Mirel/Core/CCapture.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/System/CMTEventProvider.h"

#include <memory>

namespace MirelExt::AAXPlugin
{

/// Links one of the framework's parameters to the host's parameter of the same meaning, in both directions:
/// the framework sees it as an observable value, and asks the host for changes through it.
///
/// Values: any thread. The change event fires on the thread of the change, but for changes on the audio
/// thread (by MIDI), which fire nothing; who must follow those reads the value by timer. Captures: GUI
/// thread.
class CAAXPluginParamAdapter : public virtual Mirel::DataModel::Objects::ICaptureParam,
                               public virtual Mirel::Audio::Plugin::IOutputParam,
                               private Mirel::Core::CCapture
{
public:
    enum class EDirection
    {
        Input,
        Output
    };

    /// All but the identifier must outlive the use of the adapter.
    CAAXPluginParamAdapter(const Mirel::DataModel::Objects::IConstParamInfo& info_,
                           Mirel::Core::TIValue<float>& value_, EDirection direction_,
                           std::string identifier_, const CAudioThreadMark& audioThread_);

    /// Before MakeParameter.
    void SetIdentifier(const char* newIdentifier) { identifier = newIdentifier; }

    /// The host's parameter of this one, over the same value. It must outlive the use of the adapter. Once,
    /// before other threads know the adapter; until then there is no host, and values are set directly.
    std::unique_ptr<CAAXPluginParameter> MakeParameter(std::string_view prefix);

    const Mirel::DataModel::Objects::IConstParamInfo& GetInfo() const override { return info; }
    float GetValue() const override { return value.GetValue(); }

    /// An input asks the host, so that it can record the change; an output takes the value as it is.
    void SetValue(float newValue) override;

    /// Asks the host in any case.
    void Automate(float newValue) override;

    Mirel::Core::IEventProvider& GetValueChangedEventProvider() const override { return changed; }

    /// Fires the change event if the value was changed on the audio thread since the last delivery. Any
    /// thread but the audio thread.
    void DeliverChange() const;

    /// A hand on the parameter: the host records what comes between the two as one gesture.
    void BeginCapture() override;
    void EndCapture() override;
    bool IsCaptured() const override { return CCapture::IsCaptured(); }
    Mirel::Core::IEventProvider& GetBeginCaptureEventProvider() const override;
    Mirel::Core::IEventProvider& GetEndCaptureEventProvider() const override;

private:
    void Post(float newValue);
    void NotifyValueChanged();

    const Mirel::DataModel::Objects::IConstParamInfo& info;
    Mirel::Core::TIValue<float>& value;
    EDirection direction;
    std::string identifier;
    const CAudioThreadMark& audioThread;
    CAAXPluginParameter* parameter = nullptr;
    // Listening and delivering change nothing of the value.
    mutable std::atomic<bool> isChanged = false;
    mutable Mirel::System::CMTEventProvider changed;
};

} // namespace MirelExt::AAXPlugin
