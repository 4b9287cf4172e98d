#pragma once

#include "Mirel/Containers/TStringMap.h"
#include "Mirel/Runtime/IDynamicObject.h"

#include <memory>
#include <type_traits>
#include <vector>

namespace Mirel::Runtime
{

/// Holds objects of unrelated classes behind one type: each interface is entered under a name and asked for
/// by that name. Belongs to one thread.
class CDynamicObject : public IDynamicObject
{
public:
    static constexpr const char* className = "CDynamicObject";
    static constexpr const char* classKey = nullptr;

    CDynamicObject() = default;
    CDynamicObject(const CDynamicObject&) = delete;
    CDynamicObject& operator=(const CDynamicObject&) = delete;

    const IRTTypeInfo& GetTypeInfo() const override;
    const void* GetInterface(const char* name) const override;
    void* GetInterface(const char* name) override;
    ~CDynamicObject() override;

    /// Enters the pointer under the name, in place of what stood there. T is the interface's own type, to
    /// which the receiver casts back. With owned the object is destroyed on Clear or with this object, also
    /// when the name is null, which enters nothing. One object with several interfaces is owned once, however
    /// often it is entered as owned.
    template <class T>
    void AddInterface(const char* name, T* pointer, bool owned)
    {
        if (owned && pointer != nullptr && !IsOwned(WholeObject(pointer)))
        {
            objects.push_back({WholeObject(pointer), std::shared_ptr<T>(pointer)});
        }
        Enter(name, pointer);
    }

    /// Forgets all interfaces and destroys what is owned, the latest first.
    void Clear();

private:
    struct COwned
    {
        const void* identity; ///< Start of the whole object, the same for all its interfaces.
        std::shared_ptr<void> object;
    };

    template <class T>
    static const void* WholeObject(const T* pointer)
    {
        if constexpr (std::is_polymorphic_v<T>)
        {
            return dynamic_cast<const void*>(pointer);
        }
        else
        {
            return pointer;
        }
    }

    bool IsOwned(const void* identity) const;
    void Enter(const char* name, void* pointer);

    Containers::TStringMap<void*> interfaces;
    std::vector<COwned> objects;
};

} // namespace Mirel::Runtime
