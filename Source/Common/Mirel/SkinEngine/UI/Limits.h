#pragma once

namespace Mirel::SkinEngine
{

/// Elements that one skin builds, items of collections apart: each may be a widget with an area of its own.
/// Skins come from strangers; no honest one comes near it.
constexpr int maxSkinElements = 16384;

} // namespace Mirel::SkinEngine
