#pragma once

namespace Mirel::SkinEngine
{

/// Collections inside the items of collections, as far as a saved state brings them back if they come in the
/// wrong order. An honest state has them in the right one.
constexpr int maxCollectionLevels = 16;

} // namespace Mirel::SkinEngine
