#pragma once

#include "Mirel/Core/THolder.h"

#include <string>
#include <string_view>

class TiXmlDocument;
class TiXmlElement;

namespace Mirel::Serialization
{

/// Owns an XML document. The one place where documents are made, parsed and written: the library's
/// process-wide switch for white space is set here, off, so that texts keep their blanks.
class CXmlDocHolder
{
public:
    CXmlDocHolder();
    CXmlDocHolder(const CXmlDocHolder&) = delete;
    CXmlDocHolder& operator=(const CXmlDocHolder&) = delete;
    virtual ~CXmlDocHolder();

protected:
    /// A fresh document: declaration and root element, which is the document's.
    TiXmlElement* MakeDocument(const char* rootName);

    /// Replaces the content by that of the text. The root element, or null with the document empty if the
    /// text is not one that IsReadableXml accepts and the library parses without an error.
    TiXmlElement* ParseDocument(const std::string& text);

    /// The document in the library's stream form, on one line. False if it could not be parsed again.
    bool PrintDocument(std::string& text) const;

private:
    Core::THolder<TiXmlDocument> document;
};

} // namespace Mirel::Serialization
