#include "Mirel/Serialization/CXmlDataObject.h"

#include "Mirel/Serialization/Limits.h"
#include "Mirel/Serialization/WholeFile.h"

namespace Mirel::Serialization
{

namespace
{

/// "\r\n" and "\r" become "\n", in place.
void UnifyLineEnds(std::string& text)
{
    std::size_t kept = 0;
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        const bool endsInLineFeed = text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
        if (!endsInLineFeed)
        {
            text[kept++] = text[at] == '\r' ? '\n' : text[at];
        }
    }
    text.resize(kept);
}

} // namespace

CXmlDataObject::CXmlDataObject(const char* rootName, int mode_) : CXmlBaseDataObject(nullptr, mode_)
{
    SetElement(MakeDocument(rootName));
}

bool CXmlDataObject::LoadFromMemory(const char* text, std::size_t length)
{
    SetElement(nullptr);
    if (text == nullptr)
    {
        length = 0;
    }
    while (length != 0 && text[length - 1] == '\0')
    {
        --length;
    }
    if (length <= CLimits::maxXmlBytes)
    {
        SetElement(ParseDocument(std::string(text, length)));
    }
    return GetElement() != nullptr;
}

bool CXmlDataObject::LoadFromFile(const char* path)
{
    SetElement(nullptr);
    std::string text;
    if (ReadFileWhole(path, CLimits::maxXmlBytes, text))
    {
        UnifyLineEnds(text);
        SetElement(ParseDocument(text));
    }
    return GetElement() != nullptr;
}

bool CXmlDataObject::SaveToText(std::string& text) const
{
    return GetElement() != nullptr && PrintDocument(text);
}

bool CXmlDataObject::SaveToFile(const char* path) const
{
    std::string text;
    return SaveToText(text) && WriteFileWhole(path, text);
}

} // namespace Mirel::Serialization
