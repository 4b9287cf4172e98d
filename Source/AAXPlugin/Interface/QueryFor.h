#pragma once

#include "AAXPlugin/Interface/AAXResults.h"
#include "AAXPlugin/Interface/InterfaceIds.h"
#include "AAXPlugin/Interface/TACFReference.h"

/// Another interface of the same object; holds nothing if there is no object or it does not offer it.
template <class T, class TUnknown>
TACFReference<T> QueryFor(TUnknown* unknown)
{
    void* found = nullptr;
    if (unknown == nullptr || unknown->QueryInterface(InterfaceIdOf<T>, &found) != AAXResult::Ok)
    {
        found = nullptr;
    }
    return TACFReference<T>::Adopt(static_cast<T*>(found));
}
