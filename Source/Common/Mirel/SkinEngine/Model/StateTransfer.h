#pragma once

#include "Mirel/SkinEngine/Model/CSkinModelState.h"
#include "Mirel/SkinEngine/Model/ISkinDynamicObjectsDictionary.h"

namespace Mirel::SkinEngine
{

/// Puts the values of all objects that can be set into the state, in place of what it held.
void TakeValues(const ISkinDynamicObjectsDictionary& objects, CSkinModelState& state);

/// Sets the objects that the state names, counts first, since with those objects come and go. What the
/// dictionary does not have, or has as another kind, is skipped.
void RestoreValues(ISkinDynamicObjectsDictionary& objects, const CSkinModelState& state);

} // namespace Mirel::SkinEngine
