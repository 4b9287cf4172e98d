#include "Mirel/Serialization/CIniDataObject.h"

#include "Mirel/Serialization/CIniStore.h"
#include "Mirel/Serialization/IniText.h"
#include "Mirel/Serialization/Limits.h"
#include "Mirel/Serialization/WholeFile.h"

#include <algorithm>

namespace Mirel::Serialization
{

CIniDataObject::CIniDataObject() : CIniDataObject(new CIniStore()) {}

CIniDataObject::CIniDataObject(CIniStore* store_) : CIniBaseDataObject("", *store_), ownedStore(store_) {}

CIniDataObject::~CIniDataObject() = default;

bool CIniDataObject::LoadFromFile(const char* path)
{
    ownedStore->Reset();
    std::string text;
    return ReadFileWhole(path, CLimits::maxIniBytes, text) && Load(text);
}

bool CIniDataObject::LoadFromMemory(const char* text, std::size_t length)
{
    ownedStore->Reset();
    return text != nullptr && length <= CLimits::maxIniBytes && Load(std::string(text, length));
}

bool CIniDataObject::SaveToText(std::string& text) const
{
    std::string saved;
    if (!IsStorable() || ownedStore->Save(saved, false) < 0 || saved.size() > CLimits::maxIniBytes)
    {
        return false;
    }
    text = std::move(saved);
    return true;
}

bool CIniDataObject::SaveToFile(const char* path) const
{
    std::string text;
    return SaveToText(text) && WriteFileWhole(path, text);
}

bool CIniDataObject::Load(const std::string& text)
{
    // The library would take a zero for the end.
    if (text.find('\0') != std::string::npos)
    {
        return false;
    }
    if (ownedStore->LoadData(text) < 0 || HasOpenSection())
    {
        ownedStore->Reset();
        return false;
    }
    return true;
}

/// The library takes the lines from a "[" without "]" up to the next key for a section's name.
bool CIniDataObject::HasOpenSection() const
{
    CIniStore::TNamesDepend sections;
    ownedStore->GetAllSections(sections);
    return std::any_of(sections.begin(), sections.end(),
                       [](const auto& name) { return std::strpbrk(name.pItem, "\r\n") != nullptr; });
}

/// What a file brought may be more than the library can write: a block of lines can hold what only looks like
/// the start of another.
bool CIniDataObject::IsStorable() const
{
    CIniStore::TNamesDepend sections;
    ownedStore->GetAllSections(sections);
    const auto isStorable = [](const auto& entry)
    { return IsIniKey(entry.first.pItem) && IsIniValue(entry.second); };
    return std::all_of(sections.begin(), sections.end(),
                       [&](const auto& name)
                       {
                           const auto* entries = ownedStore->GetSection(name.pItem);
                           return (*name.pItem == '\0' || IsIniSection(name.pItem)) &&
                                  std::all_of(entries->begin(), entries->end(), isStorable);
                       });
}

} // namespace Mirel::Serialization
