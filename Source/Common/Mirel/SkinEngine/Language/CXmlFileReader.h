#pragma once

#include "Mirel/SkinEngine/Language/CXMLNamedAttributes.h"
#include "Mirel/SkinEngine/Language/IXmlEvents.h"

#include <string>
#include <string_view>

#include <xercesc/sax2/DefaultHandler.hpp>

namespace Mirel::SkinEngine
{

/// Reads one file with the XML library, which is behind this class alone; a CXercesSession must live. Belongs
/// to one thread.
class CXmlFileReader : public xercesc::DefaultHandler
{
public:
    /// The events are not owned.
    explicit CXmlFileReader(IXmlEvents& events_) : events(&events_) {}

    /// Reads the file's bytes. False if the file broke off. Passes on exceptions of the library and of the
    /// events.
    bool Read(std::string_view bytes);

    /// The line that the reader has come to: within a start tag its last one. 0 outside of Read.
    int GetLine() const;

    // The rest is the library's to call.
    void startElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qualifiedName,
                      const xercesc::Attributes& attributes) override;
    void endElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qualifiedName) override;
    void setDocumentLocator(const xercesc::Locator* documentLocator) override { locator = documentLocator; }
    void warning(const xercesc::SAXParseException& exception) override;
    void error(const xercesc::SAXParseException& exception) override;
    void fatalError(const xercesc::SAXParseException& exception) override;
    xercesc::InputSource* resolveEntity(const XMLCh* publicId, const XMLCh* systemId) override;

private:
    void Report(IXmlEvents::EFault fault, const xercesc::SAXParseException& exception);
    void Refuse(const std::string& reason);

    IXmlEvents* events;
    const xercesc::Locator* locator = nullptr;
    std::string elementName; ///< Kept for its memory.
    std::size_t depth = 0;
    bool complete = false;
};

} // namespace Mirel::SkinEngine
