#include "Mirel/Serialization/CXmlBaseDataObject.h"

#include "Mirel/Core/NewText.h"
#include "Mirel/Serialization/Base64.h"
#include "Mirel/Serialization/Limits.h"
#include "Mirel/Serialization/NumberText.h"
#include "Mirel/Serialization/XmlScan.h"
#include "Mirel/Serialization/XmlText.h"

#include <tinyxml.h>

#include <memory>
#include <string_view>
#include <unordered_set>

namespace Mirel::Serialization
{

namespace
{

// Element names of the kinds of value in mode 1.
constexpr const char* boolKind = "BOOL";
constexpr const char* intKind = "INTEGER";
constexpr const char* floatKind = "FLOAT";
constexpr const char* doubleKind = "DOUBLE";
constexpr const char* stringKind = "STRING";
constexpr const char* binaryKind = "DATA";
constexpr const char* objectKind = "OBJECT";

/// 1 for the root element.
int DepthOf(const TiXmlNode& node)
{
    int depth = 1;
    for (const TiXmlNode* parent = node.Parent(); parent != nullptr && parent->ToElement() != nullptr;
         parent = parent->Parent())
    {
        ++depth;
    }
    return depth;
}

} // namespace

void CXmlBaseDataObject::SetElement(TiXmlElement* newElement)
{
    element = newElement;
    children = CXmlChildren(element, mode);
}

bool CXmlBaseDataObject::Read(const char* key, bool& value) const
{
    return ReadNumber(key, value);
}

bool CXmlBaseDataObject::Read(const char* key, int& value) const
{
    return ReadNumber(key, value);
}

bool CXmlBaseDataObject::Read(const char* key, float& value) const
{
    return ReadNumber(key, value);
}

bool CXmlBaseDataObject::Read(const char* key, double& value) const
{
    return ReadNumber(key, value);
}

bool CXmlBaseDataObject::Read(const char* key, char*& value) const
{
    if (!Exists(key))
    {
        return false;
    }
    std::string joined;
    const char* text = FindText(key, joined);
    value = Core::NewText(text == nullptr ? "" : text);
    return true;
}

bool CXmlBaseDataObject::Read(const char* key, void*& data, unsigned& size) const
{
    if (!Exists(key))
    {
        return false;
    }
    std::string joined;
    const char* text = FindText(key, joined);
    data = DecodeBase64(text == nullptr ? "" : text, size);
    return true;
}

bool CXmlBaseDataObject::Read(const char* key, IDeSerialize& object) const
{
    TiXmlElement* child = key == nullptr ? nullptr : children.Find(key);
    return child != nullptr && object.Deserialize(CXmlBaseDataObject(child, mode));
}

bool CXmlBaseDataObject::Exists(const char* key) const
{
    if (element == nullptr || key == nullptr)
    {
        return false;
    }
    const bool isAttribute = mode == CXmlMode::Attributes && element->Attribute(key) != nullptr;
    return isAttribute || children.Find(key) != nullptr;
}

bool CXmlBaseDataObject::Write(const char* key, bool value)
{
    return WriteNumber(key, boolKind, value);
}

bool CXmlBaseDataObject::Write(const char* key, int value)
{
    return WriteNumber(key, intKind, value);
}

bool CXmlBaseDataObject::Write(const char* key, float value)
{
    return WriteNumber(key, floatKind, value);
}

bool CXmlBaseDataObject::Write(const char* key, double value)
{
    return WriteNumber(key, doubleKind, value);
}

bool CXmlBaseDataObject::Write(const char* key, const char* value)
{
    return WriteText(key, stringKind, value == nullptr ? "" : value);
}

bool CXmlBaseDataObject::Write(const char* key, const void* data, unsigned size)
{
    if (EncodedBase64Length(size) > CLimits::maxXmlBytes)
    {
        return false;
    }
    const std::unique_ptr<char[]> text(EncodeBase64(data, size));
    return WriteText(key, binaryKind, text.get());
}

bool CXmlBaseDataObject::Write(const char* key, const ISerialize& object)
{
    // One level is kept for the values of the nested object.
    if (element == nullptr || !IsKey(key) || DepthOf(*element) + 2 > CLimits::maxXmlDepth)
    {
        return false;
    }
    TiXmlElement* child = NewChild(key, objectKind);
    RemoveAll(key);
    children.Append(child);
    CXmlBaseDataObject nested(child, mode);
    return object.Serialize(nested);
}

void CXmlBaseDataObject::Remove(const char* key)
{
    if (element == nullptr || key == nullptr)
    {
        return;
    }
    if (mode == CXmlMode::Attributes)
    {
        element->RemoveAttribute(key);
    }
    children.Remove(key);
}

void CXmlBaseDataObject::RemoveAll(const char* key)
{
    if (mode == CXmlMode::Attributes)
    {
        element->RemoveAttribute(key);
    }
    children.RemoveAll(key);
}

void CXmlBaseDataObject::Clear()
{
    children.Clear();
    if (element == nullptr || mode != CXmlMode::Attributes)
    {
        return;
    }
    while (const TiXmlAttribute* attribute = element->FirstAttribute())
    {
        const std::string name = attribute->Name();
        element->RemoveAttribute(name.c_str());
    }
}

bool CXmlBaseDataObject::CopyContentTo(IWriteDataStream& target) const
{
    if (element == nullptr)
    {
        return false;
    }
    bool copied = true;
    std::unordered_set<std::string_view> keys;
    const TiXmlAttribute* attribute = mode == CXmlMode::Attributes ? element->FirstAttribute() : nullptr;
    for (; attribute != nullptr; attribute = attribute->Next())
    {
        keys.insert(attribute->Name());
        copied = target.Write(attribute->Name(), attribute->Value()) && copied;
    }
    for (TiXmlElement* child = element->FirstChildElement(); child != nullptr;
         child = child->NextSiblingElement())
    {
        const char* key = mode == CXmlMode::NamedElements ? child->Attribute("name") : child->Value();
        if (key != nullptr && keys.insert(key).second)
        {
            copied = CopyChild(*child, key, target) && copied;
        }
    }
    return copied;
}

bool CXmlBaseDataObject::CopyChild(TiXmlElement& child, const char* key, IWriteDataStream& target) const
{
    std::string joined;
    const char* text = mode == CXmlMode::Attributes ? nullptr : GetXmlText(child, joined);
    if (text != nullptr && child.FirstChildElement() == nullptr)
    {
        return target.Write(key, text);
    }
    const CXmlBaseDataObject content(&child, mode);
    return target.Write(key, static_cast<const ISerialize&>(CContentSerializer(content)));
}

/// The text of the value of that key; null if there is none.
const char* CXmlBaseDataObject::FindText(const char* key, std::string& joined) const
{
    if (element == nullptr || key == nullptr)
    {
        return nullptr;
    }
    if (mode == CXmlMode::Attributes)
    {
        return element->Attribute(key);
    }
    const TiXmlElement* child = children.Find(key);
    return child == nullptr ? nullptr : GetXmlText(*child, joined);
}

template <class T>
bool CXmlBaseDataObject::ReadNumber(const char* key, T& value) const
{
    std::string joined;
    const char* text = FindText(key, joined);
    if (text == nullptr)
    {
        return false;
    }
    ParseNumber(text, value);
    return true;
}

template <class T>
bool CXmlBaseDataObject::WriteNumber(const char* key, const char* kind, T value)
{
    std::string text;
    return FormatNumber(value, text) && WriteText(key, kind, text.c_str());
}

bool CXmlBaseDataObject::WriteText(const char* key, const char* kind, const char* text)
{
    if (element == nullptr || !IsKey(key))
    {
        return false;
    }
    if (mode == CXmlMode::Attributes)
    {
        const std::string copy = text; // which may stand in the attribute that goes
        RemoveAll(key);
        if (!IsXmlAttributeText(copy))
        {
            return false;
        }
        element->SetAttribute(key, copy.c_str());
        return true;
    }
    std::unique_ptr<TiXmlElement> child(NewChild(key, kind));
    const bool stored = AppendXmlText(*child, text);
    RemoveAll(key);
    if (stored)
    {
        children.Append(child.release());
    }
    return stored;
}

TiXmlElement* CXmlBaseDataObject::NewChild(const char* key, const char* kind) const
{
    if (mode != CXmlMode::NamedElements)
    {
        return new TiXmlElement(key);
    }
    auto child = std::make_unique<TiXmlElement>(kind);
    child->SetAttribute("name", key);
    return child.release();
}

bool CXmlBaseDataObject::IsKey(const char* key) const
{
    if (key == nullptr)
    {
        return false;
    }
    return mode == CXmlMode::NamedElements ? IsXmlAttributeText(key) : IsXmlName(key);
}

} // namespace Mirel::Serialization
