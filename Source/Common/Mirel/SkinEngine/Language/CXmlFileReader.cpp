#include "Mirel/SkinEngine/Language/CXmlFileReader.h"

#include "Mirel/Core/Numeric.h"
#include "Mirel/SkinEngine/Language/Utf16.h"
#include "Mirel/SkinEngine/Limits.h"

#include <cstdint>
#include <memory>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

namespace Mirel::SkinEngine
{

namespace
{

using xercesc::XMLUni;

/// Ends the reading of a file from within a callback.
class CReadingEnded
{
};

/// Skins come from strangers: nothing but the file itself is read, and its entities cannot multiply it. All
/// else of the library stays as it comes.
void SwitchOffForeignEntities(xercesc::SAX2XMLReader& reader, xercesc::SecurityManager& security)
{
    security.setEntityExpansionLimit(CLimits::maxEntityExpansions);
    reader.setProperty(XMLUni::fgXercesSecurityManager, &security);
    reader.setFeature(XMLUni::fgXercesLoadExternalDTD, false);
    reader.setFeature(XMLUni::fgXercesLoadSchema, false);
    reader.setFeature(XMLUni::fgXercesDisableDefaultEntityResolution, true);
}

/// The end of a document, for what is asked to follow a reference out of the file.
xercesc::InputSource* MakeEmptySource()
{
    static constexpr XMLByte nothing = 0;
    return new xercesc::MemBufInputSource(&nothing, 0, "refused");
}

} // namespace

static_assert(sizeof(XMLCh) == sizeof(char16_t) && std::is_same_v<XMLCh, char16_t>);

bool CXmlFileReader::Read(std::string_view bytes)
{
    xercesc::SecurityManager security;
    const std::unique_ptr<xercesc::SAX2XMLReader> reader(xercesc::XMLReaderFactory::createXMLReader());
    SwitchOffForeignEntities(*reader, security);
    reader->setContentHandler(this);
    reader->setErrorHandler(this);
    reader->setEntityResolver(this);
    const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(bytes.data()), bytes.size(),
                                            "skin");
    depth = 0;
    complete = true;
    try
    {
        reader->parse(source);
    }
    catch (const CReadingEnded&)
    {
        complete = false;
    }
    locator = nullptr;
    return complete;
}

int CXmlFileReader::GetLine() const
{
    return locator == nullptr ? 0
                              : Core::SaturateToInt32(static_cast<std::int64_t>(locator->getLineNumber()));
}

void CXmlFileReader::startElement(const XMLCh* /*uri*/, const XMLCh* /*localName*/,
                                  const XMLCh* qualifiedName, const xercesc::Attributes& attributes)
{
    // Entities, too, can hold elements.
    if (++depth > CLimits::maxFileDepth)
    {
        Refuse("elements nested deeper than " + std::to_string(CLimits::maxFileDepth));
    }
    CXMLNamedAttributes narrow;
    const XMLSize_t count = attributes.getLength();
    for (XMLSize_t i = 0; i < count; ++i)
    {
        // Entities make values longer than they stand in the file.
        if (xercesc::XMLString::stringLen(attributes.getValue(i)) > CLimits::maxAttributeBytes)
        {
            Refuse("an attribute longer than " + std::to_string(CLimits::maxAttributeBytes) + " bytes");
        }
        narrow.Add(attributes.getQName(i), attributes.getValue(i));
    }
    AssignUtf8(qualifiedName, elementName);
    if (!events->OnStartTag(elementName, narrow))
    {
        throw CReadingEnded();
    }
}

void CXmlFileReader::endElement(const XMLCh* /*uri*/, const XMLCh* /*localName*/, const XMLCh* qualifiedName)
{
    --depth;
    AssignUtf8(qualifiedName, elementName);
    if (!events->OnEndTag(elementName))
    {
        throw CReadingEnded();
    }
}

void CXmlFileReader::warning(const xercesc::SAXParseException& exception)
{
    Report(IXmlEvents::EFault::Warning, exception);
}

void CXmlFileReader::error(const xercesc::SAXParseException& exception)
{
    Report(IXmlEvents::EFault::Error, exception);
}

void CXmlFileReader::fatalError(const xercesc::SAXParseException& exception)
{
    complete = false;
    Report(IXmlEvents::EFault::FatalError, exception);
}

xercesc::InputSource* CXmlFileReader::resolveEntity(const XMLCh* /*publicId*/, const XMLCh* systemId)
{
    Refuse("external entity '" + ToUtf8(systemId) + "' is not read");
    return MakeEmptySource();
}

void CXmlFileReader::Report(IXmlEvents::EFault fault, const xercesc::SAXParseException& exception)
{
    events->OnFault(fault, static_cast<std::size_t>(exception.getLineNumber()),
                    ToUtf8(exception.getMessage()));
}

void CXmlFileReader::Refuse(const std::string& reason)
{
    events->OnFault(IXmlEvents::EFault::FatalError, static_cast<std::size_t>(GetLine()), reason);
    throw CReadingEnded();
}

} // namespace Mirel::SkinEngine
