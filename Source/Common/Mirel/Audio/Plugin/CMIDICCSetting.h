#pragma once

#include "Mirel/Audio/Plugin/IMIDICCSetting.h"
#include "Mirel/DataModel/Objects/IConstParamInfo.h"
#include "Mirel/DataModel/Objects/ResponseCurves.h"
#include "Mirel/Serialization/DataStreams.h"
#include "Mirel/System/CMTEventProvider.h"

#include <atomic>

namespace Mirel::Audio::Plugin
{

/// A parameter's binding to a MIDI controller, which the editor and the host's threads change while the audio
/// thread follows it. Any thread.
///
/// Each field is a relaxed atomic, so that the audio thread never waits for the editor. The curve needs no
/// lock either: it is the code of one of a table's functions, which are immutable and live as long as the
/// process, so that whatever code is read names a function that can be evaluated. Fields changed together may
/// be seen one by one; the next message sees them all.
class CMIDICCSetting : public virtual IMIDICCSetting, public Serialization::ISerializable
{
public:
    /// Disabled, controller 65 of every channel, the straight curve from 0 to 1.
    CMIDICCSetting() = default;

    /// The same from the low to the high end of the parameter's range.
    explicit CMIDICCSetting(const DataModel::Objects::IConstParamInfo& info);

    /// Takes the fields, not the listeners.
    CMIDICCSetting(const CMIDICCSetting& other);
    CMIDICCSetting& operator=(const CMIDICCSetting& other);
    ~CMIDICCSetting() override = default;

    int GetChannel() const override { return channel.load(relaxed); }
    void SetChannel(int newChannel) override;
    int GetNumber() const override { return number.load(relaxed); }
    void SetNumber(int newNumber) override;
    bool IsEnabled() const override { return enabled.load(relaxed); }
    void SetEnabled(bool newEnabled) override;
    int GetCurve() const override { return curve.load(relaxed); }
    void SetCurve(int code) override;
    float GetMin() const override { return min.load(relaxed); }
    void SetMin(float newMin) override;
    float GetMax() const override { return max.load(relaxed); }
    void SetMax(float newMax) override;

    Core::IEventProvider& GetChangedEventProvider() const override { return changed; }

    /// The value of the chosen curve.
    float EvaluateCurve(float x) const;

    /// The keys "channel", "version", "number", "enabled", "curve", "min", "max".
    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// What is missing, or not a curve's name, keeps its value, and the result is then false. "version" is
    /// not needed.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

private:
    static constexpr auto relaxed = std::memory_order_relaxed;

    template <class T>
    void Set(std::atomic<T>& field, T newValue);
    bool DeserializeCurve(const Serialization::IReadDataStream& stream);

    static constexpr int portamentoSwitch = 65;

    std::atomic<int> channel{0};
    std::atomic<int> number{portamentoSwitch};
    std::atomic<bool> enabled{false};
    std::atomic<int> curve{DataModel::Objects::linearResponseCurve};
    std::atomic<float> min{0.0f};
    std::atomic<float> max{1.0f};
    mutable System::CMTEventProvider changed; ///< Listening changes nothing of the setting.
};

} // namespace Mirel::Audio::Plugin
