#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Objects/CCurveInfo.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/DataModel/Objects/CStringInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/Objects/IConstAction.h"

namespace Mirel::SkinEngine
{

// What widgets stand on in place of the objects of the model: an object may come after its widget, and go
// before it. A relay shows the object that it was last connected to, and tells when that is another one. No
// object is owned; before one goes away the relay is connected to another. GUI thread only.

/// Of an observable object that is read: T and I are those of TICaptureObject, Info is the class of the
/// description.
template <class T, class I, class Info>
class TConstObjectRelay : public virtual DataModel::TIConstCaptureObject<T, I>
{
public:
    using CSource = const DataModel::TIConstCaptureObject<T, I>;

    explicit TConstObjectRelay(CSource& first) : source(&first), info(first.GetInfo()) { Listen(); }
    TConstObjectRelay(const TConstObjectRelay&) = delete;
    TConstObjectRelay& operator=(const TConstObjectRelay&) = delete;

    void Connect(CSource& newSource)
    {
        source = &newSource;
        Listen();
        TakeInfo();
        changed.Notify();
    }

    T GetValue() const override { return source->GetValue(); }
    Core::IEventProvider& GetValueChangedEventProvider() const override { return changed; }
    const Info& GetInfo() const override { return info; }
    Core::IEventProvider& GetBeginCaptureEventProvider() const override { return begin; }
    Core::IEventProvider& GetEndCaptureEventProvider() const override { return end; }
    bool IsCaptured() const override { return source->IsCaptured(); }

private:
    void Listen()
    {
        valueConnection = {&source->GetValueChangedEventProvider(), &forwardChange};
        beginConnection = {&source->GetBeginCaptureEventProvider(), &forwardBegin};
        endConnection = {&source->GetEndCaptureEventProvider(), &forwardEnd};
        infoConnection = {&source->GetInfo().GetChangedEventProvider(), &infoChanged};
    }
    void TakeInfo() { info.CopyFrom(source->GetInfo()); }

    CSource* source;
    Info info;
    mutable Core::CEventProvider changed; ///< Listening changes nothing of a relay; so below.
    mutable Core::CEventProvider begin;
    mutable Core::CEventProvider end;
    Core::TConstCommand<Core::INotify> forwardChange{&changed, &Core::INotify::Notify};
    Core::TConstCommand<Core::INotify> forwardBegin{&begin, &Core::INotify::Notify};
    Core::TConstCommand<Core::INotify> forwardEnd{&end, &Core::INotify::Notify};
    Core::TCommand<TConstObjectRelay> infoChanged{this, &TConstObjectRelay::TakeInfo};
    CoreUtilities::CCallbackHelper valueConnection{nullptr, nullptr};
    CoreUtilities::CCallbackHelper beginConnection{nullptr, nullptr};
    CoreUtilities::CCallbackHelper endConnection{nullptr, nullptr};
    CoreUtilities::CCallbackHelper infoConnection{nullptr, nullptr};
};

using CConstParamRelay =
    TConstObjectRelay<float, DataModel::Objects::IConstParamInfo, DataModel::Objects::CParamInfo>;
using CConstCurveRelay = TConstObjectRelay<const Math::IFunction&, DataModel::Objects::IConstCurveInfo,
                                           DataModel::Objects::CCurveInfo>;
using CConstStringRelay =
    TConstObjectRelay<const char*, DataModel::Objects::IConstStringInfo, DataModel::Objects::CStringInfo>;

/// Of a parameter that is set as well. A gesture that is under way when the parameter changes is ended on the
/// one that it began on.
class CParamRelay : public CConstParamRelay, public virtual DataModel::Objects::ICaptureParam
{
public:
    using CSource = DataModel::Objects::ICaptureParam;

    explicit CParamRelay(CSource& first) : CConstParamRelay(first), target(&first) {}

    void Connect(CSource& newSource)
    {
        if (capturing)
        {
            EndCapture();
        }
        target = &newSource;
        CConstParamRelay::Connect(newSource);
    }

    void SetValue(float newValue) override { target->SetValue(newValue); }

    void BeginCapture() override
    {
        capturing = true;
        target->BeginCapture();
    }

    void EndCapture() override
    {
        capturing = false;
        target->EndCapture();
    }

private:
    CSource* target;
    bool capturing = false; ///< By one who knows the relay.
};

/// Of an action.
class CActionRelay : public virtual DataModel::Objects::IConstAction
{
public:
    using CSource = const DataModel::Objects::IConstAction;

    explicit CActionRelay(CSource& first) : source(&first) { Listen(); }
    CActionRelay(const CActionRelay&) = delete;
    CActionRelay& operator=(const CActionRelay&) = delete;

    void Connect(CSource& newSource)
    {
        source = &newSource;
        Listen();
    }

    const DataModel::IConstObjectInfo& GetInfo() const override { return source->GetInfo(); }
    void Execute() const override { source->Execute(); }
    Core::IEventProvider& GetBeginCaptureEventProvider() const override { return begin; }
    Core::IEventProvider& GetEndCaptureEventProvider() const override { return end; }
    bool IsCaptured() const override { return source->IsCaptured(); }

private:
    void Listen()
    {
        beginConnection = {&source->GetBeginCaptureEventProvider(), &forwardBegin};
        endConnection = {&source->GetEndCaptureEventProvider(), &forwardEnd};
    }

    CSource* source;
    mutable Core::CEventProvider begin;
    mutable Core::CEventProvider end;
    Core::TConstCommand<Core::INotify> forwardBegin{&begin, &Core::INotify::Notify};
    Core::TConstCommand<Core::INotify> forwardEnd{&end, &Core::INotify::Notify};
    CoreUtilities::CCallbackHelper beginConnection{nullptr, nullptr};
    CoreUtilities::CCallbackHelper endConnection{nullptr, nullptr};
};

/// Of a description.
class CParamInfoRelay : public DataModel::Objects::CParamInfo
{
public:
    using CSource = const DataModel::Objects::IConstParamInfo;

    explicit CParamInfoRelay(CSource& first) : CParamInfo(first), source(&first) { Listen(); }
    CParamInfoRelay(const CParamInfoRelay&) = delete;
    CParamInfoRelay& operator=(const CParamInfoRelay&) = delete;

    void Connect(CSource& newSource)
    {
        source = &newSource;
        Listen();
        Take();
    }

private:
    void Listen() { connection = {&source->GetChangedEventProvider(), &sourceChanged}; }
    void Take() { CopyFrom(*source); }

    CSource* source;
    Core::TCommand<CParamInfoRelay> sourceChanged{this, &CParamInfoRelay::Take};
    CoreUtilities::CCallbackHelper connection{nullptr, nullptr};
};

} // namespace Mirel::SkinEngine
