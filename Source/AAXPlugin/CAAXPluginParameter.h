#pragma once

#include "AAXPlugin/CAAXPluginDisplayDelegate.h"
#include "AAXPlugin/CGestureTurns.h"
#include "AAXPlugin/CLinearTaper.h"
#include "Mirel/Core/TIValue.h"
#include "Mirel/DataModel/Objects/IConstParamInfo.h"

#include <atomic>
#include <functional>
#include <limits>
#include <string>
#include <string_view>

namespace MirelExt::AAXPlugin
{

class AAXExtAutomationDelegate;

/// One parameter as the host knows it. Its identity is immutable; its value is one float of the framework's,
/// which any thread may read and write.
class CAAXPluginParameter
{
public:
    /// The name is the description's with the prefix before it. The description is read here only; the value
    /// must outlive the parameter.
    CAAXPluginParameter(std::string identifier_, const Mirel::DataModel::Objects::IConstParamInfo& info,
                        std::string_view prefix, Mirel::Core::TIValue<float>& value_);
    CAAXPluginParameter(const CAAXPluginParameter&) = delete;
    CAAXPluginParameter& operator=(const CAAXPluginParameter&) = delete;

    const std::string& GetIdentifier() const { return identifier; }
    const std::string& GetName() const { return name; }
    bool IsContinuous() const { return continuous; }

    /// What the host's controls step through; -1 if continuous. Values between the steps are taken, too.
    int GetStepCount() const { return stepCount; }
    const CLinearTaper& GetTaper() const { return taper; }
    const CAAXPluginDisplayDelegate& GetDisplay() const { return display; }
    float GetDefault() const { return defaultValue; }

    float GetValue() const { return value.GetValue(); }

    /// Clamps to the range and stores. NaN is no change. A change is told to the listener.
    void SetValue(float newValue);

    /// Called after each change on the thread that made it. Set before others know the parameter.
    void SetListener(std::function<void()> listener_) { listener = std::move(listener_); }

    /// Not owned; null for none. Set while nobody posts.
    void SetAutomation(AAXExtAutomationDelegate* automation_) { automation = automation_; }

    /// A change that begins inside the plug-in: the host is asked for it, and SetValue follows when it
    /// agrees. Without automation the value is set at once. Outside Touch and Release the change is a gesture
    /// of its own. An unchanged value is not posted. Any thread but the audio thread.
    void PostValue(float newValue);
    void Touch();
    void Release();

    /// PostValue for the audio thread, which does not wait. While another thread begins or ends a gesture,
    /// that thread is left to post the value after it.
    void PostValueOfAudio(float newValue);

private:
    static constexpr float none = std::numeric_limits<float>::quiet_NaN();

    /// False if there is nothing to post; else the value within the range.
    bool Request(float newValue, float& clamped);
    void Post(float clamped);
    void PostInGesture(float clamped);
    void TellTouch();
    void TellRelease();
    void BeginGesture();
    void EndGesture();
    void EndTurn();

    std::string identifier;
    std::string name;
    CLinearTaper taper;
    CAAXPluginDisplayDelegate display;
    float defaultValue;
    bool continuous;
    int stepCount;
    Mirel::Core::TIValue<float>& value;
    std::atomic<float> requested;       ///< What the value is or, once the host agrees, will be.
    std::atomic<bool> touched = false;  ///< By a hand, until Release.
    std::atomic<int> gestures = 0;      ///< That of the hand, and those of single values; the host sees one.
    std::atomic<float> deferred = none; ///< The audio thread's latest, for another thread to post.
    CGestureTurns turns;
    AAXExtAutomationDelegate* automation = nullptr;
    std::function<void()> listener;
};

/// How many values a host's control offers for a parameter of this description; -1 for a real.
int StepCountOf(const Mirel::DataModel::Objects::IConstParamInfo& info);

} // namespace MirelExt::AAXPlugin
