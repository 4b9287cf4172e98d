#include "Mirel/Serialization/XmlText.h"

#include "Mirel/Serialization/Limits.h"
#include "Mirel/Serialization/Utf8.h"
#include "Mirel/Serialization/XmlScan.h"

#include <tinyxml.h>

#include <memory>

namespace Mirel::Serialization
{

namespace
{

// What the library passes through unescaped when it writes.
constexpr std::string_view passedThrough = "&#x";

/// What the library skips before it looks for a text: white space, U+FEFF, U+FFFE and U+FFFF.
bool IsSkippedWhole(std::string_view text)
{
    while (!text.empty())
    {
        constexpr std::string_view blanks = " \t\n\v\f\r";
        if (blanks.find(text.front()) != std::string_view::npos)
        {
            text.remove_prefix(1);
        }
        else if (BeginsWithSkippedMark(text))
        {
            text.remove_prefix(3);
        }
        else
        {
            return false;
        }
    }
    return true;
}

void Append(TiXmlElement& element, std::string_view text, bool cdata)
{
    auto node = std::make_unique<TiXmlText>(std::string(text));
    node->SetCDATA(cdata);
    element.LinkEndChild(node.release());
}

/// The node after this one in the order of the document, below the root.
const TiXmlNode* NextNode(const TiXmlNode* node, const TiXmlNode* root)
{
    if (node->FirstChild() != nullptr)
    {
        return node->FirstChild();
    }
    while (node != root && node->NextSibling() == nullptr)
    {
        node = node->Parent();
    }
    return node == root ? nullptr : node->NextSibling();
}

/// Length of the text up to and with the first "&" that would be passed through, else of the whole.
std::size_t PieceLength(std::string_view text)
{
    const std::size_t at = text.find(passedThrough);
    return at == std::string_view::npos ? text.size() : at + 1;
}

std::size_t CountPieces(std::string_view text)
{
    std::size_t pieces = 1;
    for (std::size_t at = text.find(passedThrough); at != std::string_view::npos;
         at = text.find(passedThrough, at + 1))
    {
        ++pieces;
    }
    return pieces;
}

} // namespace

bool AppendXmlText(TiXmlElement& element, std::string_view text)
{
    if (text.size() > CLimits::maxXmlBytes || !IsUtf8(text) || CountPieces(text) > CLimits::maxTextPieces)
    {
        return false;
    }
    if (!text.empty() && IsSkippedWhole(text))
    {
        if (text.find('\r') != std::string_view::npos)
        {
            return false;
        }
        Append(element, text, true);
        return true;
    }
    for (std::size_t at = text.find(passedThrough); at != std::string_view::npos;
         at = text.find(passedThrough))
    {
        Append(element, text.substr(0, at + 1), false);
        text.remove_prefix(at + 1);
    }
    Append(element, text, false);
    return true;
}

const char* GetXmlText(const TiXmlElement& element, std::string& joined)
{
    const TiXmlNode* first = element.FirstChild();
    if (first == nullptr || first->ToText() == nullptr)
    {
        return nullptr;
    }
    const TiXmlNode* next = first->NextSibling();
    if (next == nullptr || next->ToText() == nullptr)
    {
        return first->ValueStr().empty() ? nullptr : first->Value();
    }
    joined.clear();
    for (const TiXmlNode* node = first; node != nullptr && node->ToText() != nullptr;
         node = node->NextSibling())
    {
        joined += node->ValueStr();
    }
    return joined.empty() ? nullptr : joined.c_str();
}

bool IsXmlAttributeText(std::string_view text)
{
    return text.size() <= CLimits::maxAttributeBytes && IsUtf8(text) &&
           text.find(passedThrough) == std::string_view::npos;
}

void SplitXmlTexts(TiXmlNode& root)
{
    for (const TiXmlNode* node = &root; node != nullptr; node = NextNode(node, &root))
    {
        const TiXmlText* text = node->ToText();
        if (text == nullptr || text->CDATA())
        {
            continue;
        }
        const std::size_t piece = PieceLength(node->ValueStr());
        if (piece == node->ValueStr().size())
        {
            continue;
        }
        // The rest becomes the next node, and is looked at in its turn.
        auto* first = const_cast<TiXmlNode*>(node);
        const TiXmlText rest(node->ValueStr().substr(piece));
        first->Parent()->InsertAfterChild(first, rest);
        first->SetValue(first->ValueStr().substr(0, piece));
    }
}

bool HasLostAttribute(const TiXmlNode& root)
{
    for (const TiXmlNode* node = &root; node != nullptr; node = NextNode(node, &root))
    {
        const TiXmlElement* element = node->ToElement();
        const TiXmlAttribute* attribute = element == nullptr ? nullptr : element->FirstAttribute();
        for (; attribute != nullptr; attribute = attribute->Next())
        {
            if (attribute->ValueStr().find(passedThrough) != std::string::npos)
            {
                return true;
            }
        }
    }
    return false;
}

} // namespace Mirel::Serialization
