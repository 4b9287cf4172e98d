#pragma once

#include <cstddef>

namespace Mirel::Serialization
{

/// Bounds on what is read, since presets and states come from strangers. Each lies far above what honest
/// files need; what goes beyond gives false. Writing keeps to the same bounds, so that what was saved can be
/// loaded.
struct CLimits
{
    /// Bytes of an XML document. One second of signal at 192 kHz, a value an element, is 8 MB.
    static constexpr std::size_t maxXmlBytes = std::size_t{16} << 20U;

    /// Elements, attributes, texts, comments and instructions of a document: each costs the library up to
    /// 250 bytes, and a few bytes of file can make one. The same second of signal has 384,000.
    static constexpr std::size_t maxXmlNodes = 500000;

    /// Nesting of elements. The library recurses when it parses, writes and destroys; 256 levels fit a stack
    /// of 512 KB with much to spare. A memory object takes two levels for each of its own.
    static constexpr int maxXmlDepth = 256;

    /// Bytes of one attribute, which are held three times over while it is parsed.
    static constexpr std::size_t maxAttributeBytes = std::size_t{1} << 20U;

    /// Attributes of one element. The library compares each with all those before it.
    static constexpr std::size_t maxAttributes = 4096;

    /// Comparisons of attributes that a whole document may cost: a quarter of a second.
    static constexpr std::size_t maxAttributeComparisons = std::size_t{1} << 25U;

    /// Texts that a string value may be split into where the library's escaping needs it.
    static constexpr std::size_t maxTextPieces = 10000;

    /// Bytes of an INI file: four bytes of file can make a section of 130 bytes.
    static constexpr std::size_t maxIniBytes = std::size_t{8} << 20U;

    /// Nested sections of an INI file: objects that are read from them recurse.
    static constexpr int maxIniDepth = 256;

    /// Items of a list, as its count gives them: a second of signal at 192 kHz fits.
    static constexpr int maxItems = 1 << 18U;

    /// How many more items of a list may be missing than are found. A count is a few bytes of file and must
    /// not make work that no bytes stand for.
    static constexpr int maxMissingItems = 256;
};

} // namespace Mirel::Serialization
