#pragma once

#include "Mirel/SkinEngine/Model/ISkinDynamicObjectsDictionary.h"
#include "Mirel/SkinEngine/Model/ObjectInterfaces.h"

namespace Mirel::SkinEngine
{

/// The object of that id as an I, owned by the model; null if it is unknown or not one. Silent.
template <class I>
I* FindObject(ISkinDynamicObjectsDictionary& dictionary, const char* id)
{
    Runtime::IDynamicObject* object = dictionary.Find(id);
    return object == nullptr ? nullptr : FindInterface<I>(*object);
}

template <class I>
const I* FindObject(const ISkinDynamicObjectsDictionary& dictionary, const char* id)
{
    const Runtime::IDynamicObject* object = dictionary.Find(id);
    return object == nullptr ? nullptr : FindInterface<I>(*object);
}

/// Report to the dictionary's log, as an error, that an id names nothing, or nothing of that kind.
void ReportUnknownObject(const ISkinDynamicObjectsDictionary& dictionary, const char* id);
void ReportWrongObjectType(const ISkinDynamicObjectsDictionary& dictionary, const char* id, const char* kind);

/// The same for who cannot do without the object: a null result is reported.
template <class I>
I* ResolveObject(ISkinDynamicObjectsDictionary& dictionary, const char* id)
{
    Runtime::IDynamicObject* object = dictionary.Find(id);
    if (object == nullptr)
    {
        ReportUnknownObject(dictionary, id);
        return nullptr;
    }
    I* wanted = FindInterface<I>(*object);
    if (wanted == nullptr)
    {
        ReportWrongObjectType(dictionary, id, TObjectInterface<I>::kind);
    }
    return wanted;
}

} // namespace Mirel::SkinEngine
