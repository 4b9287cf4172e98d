#pragma once

namespace Mirel::SkinEngine
{

// Limits on what the collections of one model, or of one skin, make in all. Counts come from files of
// strangers, from states and from anything that a link leads to a count, and nested collections multiply. No
// honest file comes near them.

/// Items that are there at a time.
constexpr int maxCollectionItems = 16384;

/// Elements and objects that those items hold at a time.
constexpr int maxCollectionElements = 65536;

/// Items that one change of a count, with all that it sets off, makes and unmakes again: links that move
/// counts to and fro would keep the thread busy.
constexpr int maxItemsPerChange = 4 * maxCollectionItems;
constexpr int maxElementsPerChange = 4 * maxCollectionElements;

/// Collections within items of collections. Each level of an item being made takes its stack.
constexpr int maxNestedCollections = 32;

} // namespace Mirel::SkinEngine
