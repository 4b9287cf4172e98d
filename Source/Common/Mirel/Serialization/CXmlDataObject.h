#pragma once

#include "Mirel/Serialization/CXmlBaseDataObject.h"
#include "Mirel/Serialization/CXmlDocHolder.h"

#include <cstddef>
#include <string>

namespace Mirel::Serialization
{

/// A data object that is a whole XML document: its root element holds the values.
///
/// Documents are UTF-8, whatever they declare. A text is refused if it is beyond CLimits or not well-formed,
/// also where the library would have repaired it. After a load that failed there is no element, and every
/// read and write gives false until a load succeeds.
class CXmlDataObject : private CXmlDocHolder, public CXmlBaseDataObject
{
public:
    /// An empty document with a root element of that name; mode is one of CXmlMode.
    explicit CXmlDataObject(const char* rootName, int mode_ = CXmlMode::Elements);

    /// Replaces the document. Zeros that end the text may be counted in the length.
    bool LoadFromMemory(const char* text, std::size_t length);

    /// Replaces the document by that of the file. Line ends become "\n".
    bool LoadFromFile(const char* path);

    /// The document as text; c_str() carries the terminating zero. False, with the text left alone, without
    /// an element or if the text could not be loaded again.
    bool SaveToText(std::string& text) const;

    /// Replaces the file whole; a failure keeps the old one.
    bool SaveToFile(const char* path) const;
};

} // namespace Mirel::Serialization
