#include "Mirel/Serialization/CXmlDocHolder.h"

#include "Mirel/Serialization/XmlScan.h"
#include "Mirel/Serialization/XmlText.h"

#include <tinyxml.h>

namespace Mirel::Serialization
{

namespace
{

Core::THolder<TiXmlDocument> NewDocument()
{
    static const bool whiteSpaceIsKept = []
    {
        TiXmlBase::SetCondenseWhiteSpace(false);
        return true;
    }();
    static_cast<void>(whiteSpaceIsKept);
    return std::make_unique<TiXmlDocument>();
}

} // namespace

CXmlDocHolder::CXmlDocHolder() : document(NewDocument()) {}

CXmlDocHolder::~CXmlDocHolder() = default;

TiXmlElement* CXmlDocHolder::MakeDocument(const char* rootName)
{
    document = NewDocument();
    document->LinkEndChild(new TiXmlDeclaration("1.0", "utf-8", ""));
    auto* root = new TiXmlElement(rootName);
    document->LinkEndChild(root);
    return root;
}

TiXmlElement* CXmlDocHolder::ParseDocument(const std::string& text)
{
    document = NewDocument();
    if (!IsReadableXml(text))
    {
        return nullptr;
    }
    // Not as "unknown": without a declaration the library would take the text for one of single bytes.
    document->Parse(text.c_str(), nullptr, TIXML_ENCODING_UTF8);
    if (document->Error() || document->FirstChildElement() == nullptr)
    {
        document = NewDocument();
        return nullptr;
    }
    SplitXmlTexts(*document);
    return document->FirstChildElement();
}

bool CXmlDocHolder::PrintDocument(std::string& text) const
{
    if (HasLostAttribute(*document))
    {
        return false;
    }
    TiXmlPrinter printer;
    printer.SetStreamPrinting();
    if (!document->Accept(&printer) || !IsReadableXml(printer.Str()))
    {
        return false;
    }
    text = printer.Str();
    return true;
}

} // namespace Mirel::Serialization
