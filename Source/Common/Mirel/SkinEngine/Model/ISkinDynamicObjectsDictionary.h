#pragma once

#include "Mirel/Core/TIArgEventProvider.h"
#include "Mirel/CoreUtilities/IMessageLog.h"
#include "Mirel/Runtime/IDynamicObject.h"

namespace Mirel::SkinEngine
{

/// An entry of a dictionary, as its listeners are told of it.
struct CDictionaryEntry
{
    const char* id;
    Runtime::IDynamicObject* object;
    bool owned; ///< Whether the dictionary owns the object.
};

/// An addition or removal ends the use of a dictionary's iterators.
class ISkinDynamicObjectsConstIterator
{
public:
    /// False once past the last entry; then only destruction is allowed.
    virtual bool IsValid() const = 0;
    virtual void Next() = 0;

    /// The dictionary's own text.
    virtual const char* GetId() const = 0;
    virtual const Runtime::IDynamicObject& GetObject() const = 0;
    virtual ~ISkinDynamicObjectsConstIterator() = default;
};

/// The same with write access to the objects.
class ISkinDynamicObjectsIterator : public ISkinDynamicObjectsConstIterator
{
public:
    using ISkinDynamicObjectsConstIterator::GetObject;
    virtual Runtime::IDynamicObject& GetObject() = 0;
};

/// Names objects of a model by text. Identifiers are case-sensitive and may hold any character. Links and
/// widgets ask once, when they are loaded, and hold the objects directly from then on. GUI thread only.
class ISkinDynamicObjectsDictionary
{
public:
    /// Removes all entries, the latest first.
    virtual void Clear() = 0;

    /// False, with nothing taken over, for a null id or object, and for an id that is there already, which is
    /// reported. With owned the dictionary destroys the object when it is removed.
    virtual bool Add(const char* id, Runtime::IDynamicObject* object, bool owned) = 0;

    /// Takes the entry out and leaves its object alone; from then on an owned one is the caller's. Null if
    /// there is none.
    virtual Runtime::IDynamicObject* Detach(const char* id, bool& owned) = 0;

    /// Takes the entry out and destroys its object if owned. False if there is none.
    virtual bool Remove(const char* id) = 0;

    /// Null for an unknown and for a null id.
    virtual Runtime::IDynamicObject* Find(const char* id) = 0;
    virtual const Runtime::IDynamicObject* Find(const char* id) const = 0;

    /// A new iterator on the first entry; the caller destroys it. The order is that of addition.
    virtual ISkinDynamicObjectsIterator* CreateIterator() = 0;
    virtual ISkinDynamicObjectsConstIterator* CreateIterator() const = 0;

    virtual ~ISkinDynamicObjectsDictionary() = default;

    /// Where failures are reported; not owned, null for nowhere.
    virtual CoreUtilities::IMessageLog* GetLog() const = 0;
    virtual void SetLog(CoreUtilities::IMessageLog* log) = 0;

    virtual int GetCount() const = 0;

    /// Fires after each addition.
    virtual Core::TIArgEventProvider<const CDictionaryEntry&>& GetAddedEventProvider() const = 0;

    /// Fires for each entry that was taken out, while its object still lives and the id is free again.
    virtual Core::TIArgEventProvider<const CDictionaryEntry&>& GetRemovedEventProvider() const = 0;
};

} // namespace Mirel::SkinEngine
