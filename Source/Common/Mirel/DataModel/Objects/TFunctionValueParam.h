#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/CCascadeShare.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

namespace Mirel::DataModel::Objects
{

inline const IConstParamInfo& GetResultInfo(const IConstCurveInfo& info)
{
    return info.GetYInfo();
}

inline const IConstParamInfo& GetResultInfo(const IConstSurfaceInfo& info)
{
    return info.GetZInfo();
}

/// A parameter that is read only: the value of an observable function where some parameters stand. Function
/// is the function's interface, count the number of its arguments.
///
/// The description follows the function's own of its results, and the value is clamped to it. While one of
/// the objects is missing the value stays what it was. No object is owned; before one goes away it is
/// replaced by another or by null. GUI thread only.
template <class Function, std::size_t count>
class TFunctionValueParam : public virtual IConstCaptureParam
{
public:
    TFunctionValueParam(const TFunctionValueParam&) = delete;
    TFunctionValueParam& operator=(const TFunctionValueParam&) = delete;

    float GetValue() const override { return result.GetValue(); }
    const CParamInfo& GetInfo() const override { return std::as_const(result).GetInfo(); }
    Core::IEventProvider& GetValueChangedEventProvider() const override
    {
        return result.GetValueChangedEventProvider();
    }

    /// Fires on every change of the function or an argument, whether or not the value is another.
    Core::IEventProvider& GetSetEventProvider() const { return result.GetSetEventProvider(); }

    /// Nobody holds a value that nobody sets: no capture begins.
    Core::IEventProvider& GetBeginCaptureEventProvider() const override
    {
        return result.GetBeginCaptureEventProvider();
    }
    Core::IEventProvider& GetEndCaptureEventProvider() const override
    {
        return result.GetEndCaptureEventProvider();
    }
    bool IsCaptured() const override { return result.IsCaptured(); }

protected:
    TFunctionValueParam() = default;

    const Function* GetFunction() const { return function; }
    const IConstCaptureParam* GetArgument(std::size_t index) const { return arguments[index]; }

    /// Null for none.
    void SetFunction(const Function* newFunction)
    {
        if (function == newFunction)
        {
            return;
        }
        functionConnection.reset();
        infoConnection.reset();
        function = newFunction;
        if (function != nullptr)
        {
            functionConnection.emplace(&function->GetValueChangedEventProvider(), &inputChanged);
            infoConnection.emplace(&function->GetInfo().GetChangedEventProvider(), &infoChanged);
            OnInfoChanged();
        }
    }

    void SetArgument(std::size_t index, const IConstCaptureParam* newArgument)
    {
        if (arguments[index] == newArgument)
        {
            return;
        }
        argumentConnections = {};
        arguments[index] = newArgument;
        ConnectArguments();
        OnInputChanged();
    }

private:
    /// One parameter may stand for several arguments; it is listened to once.
    void ConnectArguments()
    {
        for (auto place = arguments.begin(); place != arguments.end(); ++place)
        {
            if (*place != nullptr && std::find(arguments.begin(), place, *place) == place)
            {
                argumentConnections[static_cast<std::size_t>(place - arguments.begin())].emplace(
                    &(*place)->GetValueChangedEventProvider(), &inputChanged);
            }
        }
    }

    void OnInfoChanged()
    {
        result.GetInfo().CopyFrom(GetResultInfo(function->GetInfo()));
        OnInputChanged();
    }

    void OnInputChanged()
    {
        const bool complete = std::find(arguments.begin(), arguments.end(), nullptr) == arguments.end();
        const CCascadeShare::CUpdate update(cascadeShare);
        if (function != nullptr && complete && update.IsAllowed())
        {
            result.SetValue(Evaluate(std::make_index_sequence<count>()));
        }
    }

    template <std::size_t... indices>
    float Evaluate(std::index_sequence<indices...>) const
    {
        return function->GetValue()(arguments[indices]->GetValue()...);
    }

    using CConnection = std::optional<CoreUtilities::CCallbackHelper>;

    const Function* function = nullptr;
    std::array<const IConstCaptureParam*, count> arguments{};
    CCaptureParam result;
    CCascadeShare cascadeShare;
    Core::TCommand<TFunctionValueParam> inputChanged{this, &TFunctionValueParam::OnInputChanged};
    Core::TCommand<TFunctionValueParam> infoChanged{this, &TFunctionValueParam::OnInfoChanged};
    CConnection functionConnection;
    CConnection infoConnection;
    std::array<CConnection, count> argumentConnections;
};

} // namespace Mirel::DataModel::Objects
