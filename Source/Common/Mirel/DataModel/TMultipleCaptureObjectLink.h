#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/CLifeToken.h"
#include "Mirel/Core/IEnable.h"
#include "Mirel/Core/IUpdate.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/DataModel/CCascadeShare.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace Mirel::DataModel
{

/// The base of links from many sources to many targets: listens to the sources and has the derived class
/// write the targets. The captures of each source go through to all targets but that very object. TConst is
/// the sources' interface, T, derived from it, the targets'.
///
/// Created disabled and without objects. No object is owned; before one goes away it is removed, or the link
/// disabled or destroyed. A link may be changed and destroyed by any listener of other objects, also one that
/// it has caused to run. GUI thread only.
template <class TConst, class T>
class TMultipleCaptureObjectLink : public virtual Core::IEnable, public virtual Core::IUpdate
{
public:
    TMultipleCaptureObjectLink(const TMultipleCaptureObjectLink&) = delete;
    TMultipleCaptureObjectLink& operator=(const TMultipleCaptureObjectLink&) = delete;
    ~TMultipleCaptureObjectLink() override { Disconnect(); }

    const std::vector<const TConst*>& GetSources() const { return sources; }
    const std::vector<T*>& GetTargets() const { return targets; }

    /// Appends an object; null is ignored. An enabled link connects it and updates.
    void AddSource(const TConst* source)
    {
        if (source == nullptr)
        {
            return;
        }
        sources.push_back(source);
        if (enabled)
        {
            const Core::CLifeToken::CWatch watch(life);
            connections.push_back(std::make_unique<CConnection>(*this, *source));
            TakeUpCapture(*connections.back());
            if (watch.IsAlive())
            {
                UpdateUnlessOnModifyOnly();
            }
        }
    }

    void AddTarget(T* target)
    {
        if (target == nullptr)
        {
            return;
        }
        targets.push_back(target);
        ++wiring;
        const Core::CLifeToken::CWatch watch(life);
        if (HoldsTarget(*target))
        {
            target->BeginCapture();
        }
        if (watch.IsAlive())
        {
            UpdateUnlessOnModifyOnly();
        }
    }

    /// Removes every entry of the object, and ends the captures that went through it.
    void RemoveSource(const TConst* source)
    {
        std::erase(sources, source);
        std::vector<std::unique_ptr<CConnection>> removed;
        for (auto& connection : connections)
        {
            if (connection->IsOf(source))
            {
                removed.push_back(std::move(connection));
            }
        }
        std::erase(connections, nullptr);
        GiveUp(std::move(removed));
    }

    void RemoveTarget(T* target)
    {
        const bool held = target != nullptr && std::erase(targets, target) > 0 && HoldsTarget(*target);
        ++wiring;
        if (held)
        {
            target->EndCapture();
        }
    }

    bool IsOnModifyOnly() const { return onModifyOnly; }

    /// Lets the link act on changes of its sources alone, and not when it is enabled or its settings change.
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

    /// An enabled link passes on the captures that its sources are in, and updates.
    void Enable(bool enable) override
    {
        if (enabled == enable)
        {
            return;
        }
        const Core::CLifeToken::CWatch watch(life);
        enabled = enable;
        if (enable)
        {
            ConnectAll();
        }
        else
        {
            Disconnect();
        }
        if (watch.IsAlive())
        {
            changed.Notify();
        }
    }

    /// Fires after each change of the link's settings, the enable switch included.
    Core::IEventProvider& GetChangedEventProvider() const { return changed; }

    /// Updates as no source in particular asks for it.
    void Update() override { UpdateFrom(nullptr); }

protected:
    TMultipleCaptureObjectLink() = default;

    /// Writes the targets. The source is the one that has changed, or null for none in particular.
    virtual void UpdateFrom(const TConst* changedSource) = 0;

    /// For a setter that has stored a change: brings the targets up to date and fires. The link may be gone
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

    /// Calls write(T&) for each target that is not the source itself. The walk ends, and gives false, once a
    /// listener has rewired, disabled or destroyed the link.
    template <class Write>
    bool ForEachTarget(const TConst* source, const Write& write)
    {
        const Core::CLifeToken::CWatch watch(life);
        const int wiringBefore = wiring;
        for (std::size_t i = 0; i < targets.size(); ++i)
        {
            if (static_cast<const TConst*>(targets[i]) == source)
            {
                continue;
            }
            write(*targets[i]);
            if (!watch.IsAlive() || wiring != wiringBefore)
            {
                return false;
            }
        }
        return true;
    }

    bool IsSource(const T& target) const
    {
        return std::find(sources.begin(), sources.end(), &target) != sources.end();
    }

private:
    /// The listeners of one source. May be destroyed by what it calls.
    class CConnection
    {
    public:
        CConnection(TMultipleCaptureObjectLink& link_, const TConst& source_) : link(link_), source(source_)
        {
            source.GetValueChangedEventProvider().Connect(changed);
            source.GetBeginCaptureEventProvider().Connect(begun);
            source.GetEndCaptureEventProvider().Connect(ended);
        }
        CConnection(const CConnection&) = delete;
        CConnection& operator=(const CConnection&) = delete;

        ~CConnection() { Cut(); }

        void Cut()
        {
            source.GetValueChangedEventProvider().Disconnect(&changed);
            source.GetBeginCaptureEventProvider().Disconnect(&begun);
            source.GetEndCaptureEventProvider().Disconnect(&ended);
        }

        bool IsOf(const TConst* object) const { return object == &source; }
        bool IsSourceCaptured() const { return source.IsCaptured(); }
        bool Holds(const T& target) const { return holding && !IsOf(&target); }

        void BeginCapture()
        {
            holding = true;
            link.BeginCaptures(this, &source);
        }

        void EndCapture()
        {
            if (std::exchange(holding, false))
            {
                link.EndCaptures(&source);
            }
        }

    private:
        void OnChanged() { link.RunUpdate(&source); }

        TMultipleCaptureObjectLink& link;
        const TConst& source;
        bool holding = false;
        Core::TCommand<CConnection> changed{this, &CConnection::OnChanged};
        Core::TCommand<CConnection> begun{this, &CConnection::BeginCapture};
        Core::TCommand<CConnection> ended{this, &CConnection::EndCapture};
    };

    void ConnectAll()
    {
        for (const TConst* source : sources)
        {
            connections.push_back(std::make_unique<CConnection>(*this, *source));
        }
        const Core::CLifeToken::CWatch watch(life);
        for (std::size_t i = 0; watch.IsAlive() && i < connections.size(); ++i)
        {
            TakeUpCapture(*connections[i]);
        }
        if (watch.IsAlive())
        {
            UpdateUnlessOnModifyOnly();
        }
    }

    static void TakeUpCapture(CConnection& connection)
    {
        if (connection.IsSourceCaptured())
        {
            connection.BeginCapture();
        }
    }

    void Disconnect() { GiveUp(std::exchange(connections, {})); }

    /// The connections are cut before any capture ends, since a listener may destroy the link.
    void GiveUp(std::vector<std::unique_ptr<CConnection>> removed)
    {
        ++wiring;
        for (const auto& connection : removed)
        {
            connection->Cut();
        }
        const Core::CLifeToken::CWatch watch(life);
        for (const auto& connection : removed)
        {
            if (watch.IsAlive())
            {
                connection->EndCapture();
            }
        }
    }

    // What a listener has rewired is gone through again: to begin or end a capture twice does nothing.

    void BeginCaptures(const CConnection* connection, const TConst* source)
    {
        const Core::CLifeToken::CWatch watch(life);
        while (watch.IsAlive() && HasConnection(connection) &&
               !ForEachTarget(source, [](T& target) { target.BeginCapture(); }))
        {
        }
    }

    void EndCaptures(const TConst* source)
    {
        const Core::CLifeToken::CWatch watch(life);
        while (watch.IsAlive() && !ForEachTarget(source, [](T& target) { target.EndCapture(); }))
        {
        }
    }

    bool HasConnection(const CConnection* connection) const
    {
        for (const auto& each : connections)
        {
            if (each.get() == connection)
            {
                return true;
            }
        }
        return false;
    }

    bool HoldsTarget(const T& target) const
    {
        for (const auto& connection : connections)
        {
            if (connection->Holds(target))
            {
                return true;
            }
        }
        return false;
    }

    void UpdateUnlessOnModifyOnly()
    {
        if (enabled && !onModifyOnly)
        {
            RunUpdate(nullptr);
        }
    }

    void RunUpdate(const TConst* changedSource)
    {
        const CCascadeShare::CUpdate update(cascadeShare);
        if (update.IsAllowed())
        {
            UpdateFrom(changedSource);
        }
    }

    std::vector<const TConst*> sources;
    std::vector<T*> targets;
    int wiring = 0; ///< Counts the changes that walks over the targets have to heed.
    bool onModifyOnly = false;
    bool enabled = false;
    Core::CLifeToken life;
    CCascadeShare cascadeShare;
    mutable Core::CEventProvider changed; ///< Listening to a link changes nothing of it.
    std::vector<std::unique_ptr<CConnection>> connections;
};

} // namespace Mirel::DataModel
