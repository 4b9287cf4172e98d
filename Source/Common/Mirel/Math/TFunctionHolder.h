#pragma once

#include "Mirel/Core/TOwnership.h"
#include "Mirel/Math/IFunction.h"
#include "Mirel/Serialization/ItemStreams.h"

namespace Mirel::Math
{

/// A function that another object stands on: owned, or borrowed from somebody who outlives it. A copy owns a
/// clone. Written as {pointer, owned} where one is passed.
template <class I>
using TFunctionHolder = Core::TOwnershipWithClone<const I>;

/// Reads a function that its object cannot do without. False if there is none under the key, none that could
/// be created, or a saved null.
template <class I>
bool ReadNeededFunction(const Serialization::IReadDataStream& stream, const char* key,
                        TFunctionHolder<I>& function)
{
    return Serialization::ReadItem(stream, key, function) && function.Get() != nullptr;
}

} // namespace Mirel::Math
