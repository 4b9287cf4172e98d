#pragma once

#include <cstddef>

namespace Mirel::SkinEngine
{

/// Bounds on what a skin or model file can ask for, since skins come from strangers. Each lies far above what
/// honest files need, and each ends in one clear message in the log.
struct CLimits
{
    // One file, before the XML library sees a byte of it.

    /// Bytes of one file. A skin of several thousand widgets is below 1 MB.
    static constexpr std::size_t maxFileBytes = std::size_t{8} << 20U;

    /// Nesting of elements in one file. The library searches its whole stack for every prefix, and what is
    /// built from a file is nested as deep as the file.
    static constexpr std::size_t maxFileDepth = 256;

    /// Bytes of the name of an element or attribute. Names stand in messages, one for each element.
    static constexpr std::size_t maxNameBytes = 256;

    /// Bytes of one attribute's value, also after variables are put in.
    static constexpr std::size_t maxAttributeBytes = std::size_t{1} << 20U;

    /// Bytes of all values of one element that variables may make.
    static constexpr std::size_t maxElementBytes = std::size_t{4} << 20U;

    /// Attributes of one element.
    static constexpr std::size_t maxAttributes = 1024;

    /// Bytes of a document type with its declarations. With the expansions below it bounds what entities can
    /// make of a small file.
    static constexpr std::size_t maxDocumentTypeBytes = std::size_t{16} << 10U;

    /// Entities that one file may expand.
    static constexpr std::size_t maxEntityExpansions = 1000;

    // One parse, all its files together.

    /// Bytes read, where a small file counts as minFileCharge: an included file may be read many times.
    static constexpr std::size_t maxReadBytes = std::size_t{16} << 20U;
    static constexpr std::size_t minFileCharge = std::size_t{4} << 10U;

    /// Files that are open at once, each included by the one before. Each costs the stack 2.5 KB.
    static constexpr int maxIncludeDepth = 16;

    /// What templates, repeats, definitions and variables may make of the files, in bytes: every element,
    /// attribute and text is charged as if all were kept in memory. 100,000 elements of ten attributes fit.
    static constexpr std::size_t maxExpansionBytes = std::size_t{160} << 20U;
    static constexpr std::size_t elementCharge = 256;
    static constexpr std::size_t attributeCharge = 128;

    /// Charges for what takes time rather than memory: looking for a file, compiling a formula.
    static constexpr std::size_t fileTestCharge = std::size_t{4} << 10U;
    static constexpr std::size_t formulaCharge = std::size_t{8} << 10U;
    static constexpr std::size_t formulaByteCharge = 16;

    /// Elements that are open at once, through all files and templates. Widgets are nested as deep.
    static constexpr int maxElementDepth = 1024;

    /// Instances of one template in progress.
    static constexpr int maxTemplateInstances = 255;

    /// Templates and repeats of any name in progress.
    static constexpr std::size_t maxExpansionDepth = 4096;

    /// Definitions that lead from a name to the element that it stands for.
    static constexpr int maxDefinitionChain = 256;

    /// Calls of a handler back into the parser, one inside the other: a collection inside a collection.
    static constexpr int maxHandlerDepth = 64;

    /// Bytes of messages that the parser itself posts.
    static constexpr std::size_t maxMessageBytes = std::size_t{16} << 20U;

    /// Nesting of a template that is read from or written to a data object. Data objects recurse: a level
    /// costs the stack some 600 bytes.
    static constexpr int maxSavedDepth = 64;
};

} // namespace Mirel::SkinEngine
