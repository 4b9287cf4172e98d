#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/CLifeToken.h"
#include "Mirel/Core/IEnable.h"
#include "Mirel/Core/IUpdate.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/DataModel/CCascadeShare.h"

#include <utility>

namespace Mirel::DataModel
{

/// The base of all one-way links: listens to a source and has the derived class's Update write a target.
/// TConst is the source's interface, T the target's.
///
/// Created disabled and without objects. Neither object is owned; before one goes away the link is disabled,
/// destroyed or given another. While one is missing the link does nothing. A link may be changed, disabled
/// and destroyed by any listener of other objects, also one that it has caused to run. GUI thread only.
template <class TConst, class T>
class TBaseCaptureObjectLink : public virtual Core::IEnable, public virtual Core::IUpdate
{
public:
    TBaseCaptureObjectLink(const TBaseCaptureObjectLink&) = delete;
    TBaseCaptureObjectLink& operator=(const TBaseCaptureObjectLink&) = delete;

    ~TBaseCaptureObjectLink() override
    {
        CutConnections();
        if (forwarded)
        {
            targetObject->EndCapture();
        }
    }

    const TConst* GetSource() const { return sourceObject; }
    T* GetTarget() const { return targetObject; }

    /// Null for none. An enabled link connects anew, as if it were enabled with the object.
    void SetSource(const TConst* newSource) { Exchange(sourceObject, newSource); }
    void SetTarget(T* newTarget) { Exchange(targetObject, newTarget); }

    bool IsOnModifyOnly() const { return onModifyOnly; }

    /// Lets the link act on changes of the source alone, and not when it is enabled or its settings change.
    void SetOnModifyOnly(bool newOnModifyOnly)
    {
        if (onModifyOnly != newOnModifyOnly)
        {
            onModifyOnly = newOnModifyOnly;
            changed.Notify();
        }
    }

    bool IsEnabled() const override { return enabled; }
    Core::IEventProvider& GetEnableChangedEventProvider() const override { return changed; }

    /// An enabled link passes on a capture that the source is in, and updates.
    void Enable(bool enable) override
    {
        if (enabled == enable)
        {
            return;
        }
        const Core::CLifeToken::CWatch watch(life);
        enabled = enable;
        enable ? Connect() : Disconnect();
        if (watch.IsAlive())
        {
            changed.Notify();
        }
    }

    /// Fires after each change of the link's settings, the enable switch included.
    Core::IEventProvider& GetChangedEventProvider() const { return changed; }

protected:
    /// A link that does not forward captures leaves those of the source to the source.
    explicit TBaseCaptureObjectLink(bool forwardsCaptures_ = true) : forwardsCaptures(forwardsCaptures_) {}

    /// For a setter that has stored a change: brings the target up to date and fires. The link may be gone
    /// afterwards.
    void ApplySettings()
    {
        const Core::CLifeToken::CWatch watch(life);
        UpdateUnlessOnModifyOnly();
        if (watch.IsAlive())
        {
            changed.Notify();
        }
    }

    /// For a setter whose change the target does not show.
    void NotifyChanged() const { changed.Notify(); }

    bool IsConnected() const { return connected; }

    /// Whether the target is in a capture that came from the source.
    bool HasForwardedCapture() const { return forwarded; }

    /// The source's capture has begun and ended; pass that on to the target.
    virtual void ForwardBeginCapture() { targetObject->BeginCapture(); }
    virtual void ForwardEndCapture() { targetObject->EndCapture(); }

    /// The link has begun or ceased to listen. The destructor calls neither.
    virtual void OnConnected() {}
    virtual void OnDisconnected() {}

    /// To be watched by what runs on after a call to the target, whose listeners may have destroyed the link.
    const Core::CLifeToken& GetLife() const { return life; }

private:
    template <class P>
    void Exchange(P*& field, P* newObject)
    {
        if (field == newObject)
        {
            return;
        }
        const Core::CLifeToken::CWatch watch(life);
        Disconnect();
        if (watch.IsAlive())
        {
            field = newObject;
            Connect();
        }
    }

    void Connect()
    {
        if (connected || !enabled || sourceObject == nullptr)
        {
            return;
        }
        connected = true;
        sourceObject->GetValueChangedEventProvider().Connect(sourceChanged);
        if (forwardsCaptures)
        {
            sourceObject->GetBeginCaptureEventProvider().Connect(captureBegun);
            sourceObject->GetEndCaptureEventProvider().Connect(captureEnded);
        }
        const Core::CLifeToken::CWatch watch(life);
        OnConnected();
        if (watch.IsAlive() && connected && forwardsCaptures && sourceObject->IsCaptured())
        {
            OnCaptureBegun();
        }
        if (watch.IsAlive())
        {
            UpdateUnlessOnModifyOnly();
        }
    }

    /// Cuts the connections before it ends the capture, whose listeners may then do anything to the link.
    void Disconnect()
    {
        if (!connected)
        {
            return;
        }
        CutConnections();
        const Core::CLifeToken::CWatch watch(life);
        OnDisconnected();
        if (watch.IsAlive())
        {
            OnCaptureEnded();
        }
    }

    void CutConnections()
    {
        if (std::exchange(connected, false))
        {
            sourceObject->GetValueChangedEventProvider().Disconnect(&sourceChanged);
            sourceObject->GetBeginCaptureEventProvider().Disconnect(&captureBegun);
            sourceObject->GetEndCaptureEventProvider().Disconnect(&captureEnded);
        }
    }

    void UpdateUnlessOnModifyOnly()
    {
        if (connected && !onModifyOnly)
        {
            RunUpdate();
        }
    }

    void RunUpdate()
    {
        const CCascadeShare::CUpdate update(cascadeShare);
        if (!update.IsAllowed())
        {
            return;
        }
        const Core::CLifeToken::CWatch watch(life);
        ++updating;
        Update();
        if (watch.IsAlive())
        {
            --updating;
        }
    }

    /// The event provider keeps this from running inside itself, but not inside an update that a setter runs.
    void OnSourceChanged()
    {
        if (updating == 0)
        {
            RunUpdate();
        }
    }

    void OnCaptureBegun()
    {
        if (targetObject != nullptr)
        {
            forwarded = true;
            ForwardBeginCapture();
        }
    }

    void OnCaptureEnded()
    {
        if (std::exchange(forwarded, false))
        {
            ForwardEndCapture();
        }
    }

    const TConst* sourceObject = nullptr;
    T* targetObject = nullptr;
    bool onModifyOnly = false;
    bool enabled = false;
    bool connected = false;
    bool forwarded = false;
    const bool forwardsCaptures;
    int updating = 0; ///< Updates under way, one inside the other.
    Core::CLifeToken life;
    CCascadeShare cascadeShare;
    mutable Core::CEventProvider changed; ///< Listening to a link changes nothing of it.
    Core::TCommand<TBaseCaptureObjectLink> sourceChanged{this, &TBaseCaptureObjectLink::OnSourceChanged};
    Core::TCommand<TBaseCaptureObjectLink> captureBegun{this, &TBaseCaptureObjectLink::OnCaptureBegun};
    Core::TCommand<TBaseCaptureObjectLink> captureEnded{this, &TBaseCaptureObjectLink::OnCaptureEnded};
};

} // namespace Mirel::DataModel
