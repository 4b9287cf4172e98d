#include "Mirel/Serialization/CIniBaseDataObject.h"

#include "Mirel/Core/NewText.h"
#include "Mirel/Serialization/Base64.h"
#include "Mirel/Serialization/CIniStore.h"
#include "Mirel/Serialization/IniText.h"
#include "Mirel/Serialization/Limits.h"
#include "Mirel/Serialization/NumberText.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>

namespace Mirel::Serialization
{

namespace
{

char LowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsSectionBelow(std::string_view section, std::string_view path)
{
    return section.size() > path.size() && section[path.size()] == '/' &&
           std::equal(path.begin(), path.end(), section.begin(),
                      [](char a, char b) { return LowerCase(a) == LowerCase(b); });
}

/// Deletes the section and all that are nested in it.
void DeleteSections(CIniStore& store, const std::string& path)
{
    CIniStore::TNamesDepend sections;
    store.GetAllSections(sections);
    for (const auto& section : sections)
    {
        if (IsSectionBelow(section.pItem, path))
        {
            store.Delete(section.pItem, nullptr);
        }
    }
    store.Delete(path.c_str(), nullptr);
}

bool IsTooDeep(const std::string& path)
{
    return std::count(path.begin(), path.end(), '/') >= CLimits::maxIniDepth;
}

} // namespace

CIniBaseDataObject::CIniBaseDataObject(std::string section_, CIniStore& store_)
    : section(std::move(section_)),
      store(&store_)
{
}

bool CIniBaseDataObject::Read(const char* key, bool& value) const
{
    return ReadNumber(key, value);
}

bool CIniBaseDataObject::Read(const char* key, int& value) const
{
    return ReadNumber(key, value);
}

bool CIniBaseDataObject::Read(const char* key, float& value) const
{
    return ReadNumber(key, value);
}

bool CIniBaseDataObject::Read(const char* key, double& value) const
{
    return ReadNumber(key, value);
}

bool CIniBaseDataObject::Read(const char* key, char*& value) const
{
    const char* text = FindText(key);
    if (text == nullptr)
    {
        return false;
    }
    value = Core::NewText(text);
    return true;
}

bool CIniBaseDataObject::Read(const char* key, void*& data, unsigned& size) const
{
    const char* text = FindText(key);
    if (text == nullptr)
    {
        return false;
    }
    data = DecodeBase64(text, size);
    return true;
}

bool CIniBaseDataObject::Read(const char* key, IDeSerialize& object) const
{
    if (!Exists(key))
    {
        return false;
    }
    const std::string nested = NestedPath(key);
    return !IsTooDeep(nested) && object.Deserialize(CIniBaseDataObject(nested, *store));
}

bool CIniBaseDataObject::Exists(const char* key) const
{
    return key != nullptr && (FindText(key) != nullptr ||
                              (*key != '\0' && store->GetSection(NestedPath(key).c_str()) != nullptr));
}

bool CIniBaseDataObject::Write(const char* key, bool value)
{
    return WriteNumber(key, value);
}

bool CIniBaseDataObject::Write(const char* key, int value)
{
    return WriteNumber(key, value);
}

bool CIniBaseDataObject::Write(const char* key, float value)
{
    return WriteNumber(key, value);
}

bool CIniBaseDataObject::Write(const char* key, double value)
{
    return WriteNumber(key, value);
}

bool CIniBaseDataObject::Write(const char* key, const char* value)
{
    return WriteText(key, value == nullptr ? "" : value);
}

bool CIniBaseDataObject::Write(const char* key, const void* data, unsigned size)
{
    if (EncodedBase64Length(size) > CLimits::maxIniBytes)
    {
        return false;
    }
    const std::unique_ptr<char[]> text(EncodeBase64(data, size));
    return WriteText(key, text.get());
}

bool CIniBaseDataObject::Write(const char* key, const ISerialize& object)
{
    if (key == nullptr || !IsIniSection(key))
    {
        return false;
    }
    const std::string nested = NestedPath(key);
    if (IsTooDeep(nested))
    {
        return false;
    }
    store->Delete(section.c_str(), key);
    if (store->GetSection(nested.c_str()) != nullptr)
    {
        DeleteSections(*store, nested);
    }
    CIniBaseDataObject stream(nested, *store);
    return store->SetValue(nested.c_str(), nullptr, nullptr) >= 0 && object.Serialize(stream);
}

void CIniBaseDataObject::Remove(const char* key)
{
    if (key == nullptr || store->Delete(section.c_str(), key) || *key == '\0')
    {
        return;
    }
    const std::string nested = NestedPath(key);
    if (store->GetSection(nested.c_str()) != nullptr)
    {
        DeleteSections(*store, nested);
    }
}

void CIniBaseDataObject::Clear()
{
    if (section.empty())
    {
        store->Reset();
        return;
    }
    DeleteSections(*store, section);
}

const char* CIniBaseDataObject::FindText(const char* key) const
{
    return key == nullptr ? nullptr : store->GetValue(section.c_str(), key);
}

template <class T>
bool CIniBaseDataObject::ReadNumber(const char* key, T& value) const
{
    const char* text = FindText(key);
    if (text == nullptr)
    {
        return false;
    }
    ParseNumber(text, value);
    return true;
}

template <class T>
bool CIniBaseDataObject::WriteNumber(const char* key, T value)
{
    std::string text;
    return FormatNumber(value, text) && WriteText(key, text.c_str());
}

bool CIniBaseDataObject::WriteText(const char* key, const char* text)
{
    if (key == nullptr || !IsIniKey(key))
    {
        return false;
    }
    const std::string name = key; // which, like the text, may stand in the entry that goes
    const std::string copy = text;
    Remove(key);
    return copy.size() <= CLimits::maxIniBytes && IsIniValue(copy) &&
           store->SetValue(section.c_str(), name.c_str(), copy.c_str(), nullptr, true) >= 0;
}

std::string CIniBaseDataObject::NestedPath(const char* key) const
{
    return section.empty() ? key : section + "/" + key;
}

} // namespace Mirel::Serialization
