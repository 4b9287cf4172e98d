#pragma once

#include "Mirel/Core/CEventProvider.h"

namespace Mirel::DataModel
{

/// A pointer to an object that comes later: what is built before the object is known holds the pointer, and
/// who finds the object connects it. The object is not owned; before it goes away the pointer is connected to
/// another or to null. GUI thread only.
template <class T>
class TConnectablePointer
{
public:
    explicit TConnectablePointer(T* object_ = nullptr) : object(object_) {}
    TConnectablePointer(const TConnectablePointer&) = delete;
    TConnectablePointer& operator=(const TConnectablePointer&) = delete;

    /// Null for none. Fires on a change.
    void Connect(T* newObject)
    {
        if (object != newObject)
        {
            object = newObject;
            changed.Notify();
        }
    }

    /// Null while there is none.
    T* Get() const { return object; }
    T* operator->() const { return object; }
    T& operator*() const { return *object; }
    explicit operator bool() const { return object != nullptr; }

    Core::IEventProvider& GetChangedEventProvider() const { return changed; }

private:
    T* object;
    mutable Core::CEventProvider changed; ///< Listening to a pointer changes nothing of it.
};

} // namespace Mirel::DataModel
