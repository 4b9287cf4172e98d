#pragma once

#include "AAXPlugin/CAAXPluginDisplayDelegate.h"
#include "AAXPlugin/CLinearTaper.h"
#include "Mirel/Core/TIValue.h"
#include "Mirel/DataModel/Objects/IConstParamInfo.h"

#include <atomic>
#include <functional>
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
    /// of its own. An unchanged value is not posted.
    void PostValue(float newValue);
    void Touch();
    void Release();

private:
    std::string identifier;
    std::string name;
    CLinearTaper taper;
    CAAXPluginDisplayDelegate display;
    float defaultValue;
    bool continuous;
    int stepCount;
    Mirel::Core::TIValue<float>& value;
    std::atomic<float> requested; ///< What the value is or, once the host agrees, will be.
    std::atomic<bool> touched = false;
    AAXExtAutomationDelegate* automation = nullptr;
    std::function<void()> listener;
};

/// How many values a host's control offers for a parameter of this description; -1 for a real.
int StepCountOf(const Mirel::DataModel::Objects::IConstParamInfo& info);

} // namespace MirelExt::AAXPlugin
