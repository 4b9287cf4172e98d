#pragma once

#include "Mirel/SkinEngine/Model/CSkinModelContext.h"
#include "Mirel/SkinEngine/Model/ICollection.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "Mirel/SkinEngine/UI/TObjectRelay.h"

#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace Mirel::SkinEngine
{

/// A relay of class R that follows an identifier: it shows the object of that name, and the placeholder while
/// there is none. GUI thread only.
template <class R>
class TRelayConnection : public IObjectWatcher
{
public:
    using CSource = typename R::CSource;
    using I = std::remove_const_t<CSource>;

    /// The placeholder must outlive this object.
    TRelayConnection(std::shared_ptr<CSkinModelContext> context_, const char* id_, CSource& placeholder_)
        : context(std::move(context_)),
          id(id_),
          placeholder(placeholder_),
          relay(placeholder_)
    {
        place = context->GetWatch().Add(id, *this);
        if (Runtime::IDynamicObject* object = context->GetDictionary().Find(id.c_str()))
        {
            OnObjectAdded(*object);
        }
    }
    TRelayConnection(const TRelayConnection&) = delete;
    TRelayConnection& operator=(const TRelayConnection&) = delete;
    ~TRelayConnection() override { context->GetWatch().Remove(id, place); }

    R& GetRelay() { return relay; }
    bool IsConnected() const { return connected; }
    const std::string& GetId() const { return id; }

    void OnObjectAdded(Runtime::IDynamicObject& object) override
    {
        if (connected)
        {
            return;
        }
        if (I* found = FindInterface<I>(object))
        {
            connected = true;
            relay.Connect(*found);
        }
    }

    void OnObjectRemoved() override
    {
        if (std::exchange(connected, false))
        {
            relay.Connect(placeholder);
        }
    }

private:
    std::shared_ptr<CSkinModelContext> context;
    std::string id;
    CSource& placeholder;
    R relay;
    CObjectWatch::CPlace place;
    bool connected = false;
};

} // namespace Mirel::SkinEngine
