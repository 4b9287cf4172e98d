#include "Mirel/Serialization/CXmlChildren.h"

#include <tinyxml.h>

#include <cstdint>
#include <string>

namespace Mirel::Serialization
{

namespace
{

// Shorter lists are walked: an index would cost more than it saves.
constexpr int walkedChildren = 16;

} // namespace

TiXmlElement* CXmlChildren::Find(std::string_view key) const
{
    if (element == nullptr)
    {
        return nullptr;
    }
    if (!IsIndexed())
    {
        TiXmlElement* child = element->FirstChildElement();
        for (int i = 0; i < walkedChildren && child != nullptr; ++i, child = child->NextSiblingElement())
        {
            const char* childKey = KeyOf(*child);
            if (childKey != nullptr && key == childKey)
            {
                return child;
            }
        }
        if (child == nullptr)
        {
            return nullptr;
        }
        BuildIndex();
    }
    const auto entry = index.find(key);
    return entry == index.end() ? nullptr : entry->second.first;
}

void CXmlChildren::Append(TiXmlElement* child)
{
    const bool keep = IsIndexed();
    element->LinkEndChild(child);
    NoteChange();
    if (keep)
    {
        AddToIndex(child);
        version = element->GetUserData();
    }
}

void CXmlChildren::Remove(std::string_view key)
{
    TiXmlElement* child = Find(key);
    if (child != nullptr)
    {
        Destroy(child, key);
    }
}

void CXmlChildren::RemoveAll(std::string_view key)
{
    TiXmlElement* child = Find(key);
    if (child == nullptr)
    {
        return;
    }
    if (!IsIndexed())
    {
        BuildIndex(); // or each rewritten key would walk the whole list for others like it
    }
    if (!index.find(key)->second.repeated)
    {
        Destroy(child, key);
        return;
    }
    const std::string copy(key); // which may stand in the first child that goes
    while (child != nullptr)
    {
        TiXmlElement* next = child->NextSiblingElement();
        const char* childKey = KeyOf(*child);
        if (childKey != nullptr && copy == childKey)
        {
            Destroy(child, copy);
        }
        child = next;
    }
}

void CXmlChildren::Clear()
{
    indexed = false;
    index.clear();
    if (element != nullptr)
    {
        element->Clear();
        NoteChange();
    }
}

const char* CXmlChildren::KeyOf(const TiXmlElement& child) const
{
    return mode == CXmlMode::NamedElements ? child.Attribute("name") : child.Value();
}

void CXmlChildren::BuildIndex() const
{
    index.clear();
    for (TiXmlElement* child = element->FirstChildElement(); child != nullptr;
         child = child->NextSiblingElement())
    {
        AddToIndex(child);
    }
    indexed = true;
    version = element->GetUserData();
}

bool CXmlChildren::IsIndexed() const
{
    return indexed && version == element->GetUserData();
}

void CXmlChildren::AddToIndex(TiXmlElement* child) const
{
    const char* key = KeyOf(*child);
    if (key != nullptr && !index.try_emplace(key, CEntry{child, false}).second)
    {
        index.find(key)->second.repeated = true;
    }
}

void CXmlChildren::Destroy(TiXmlElement* child, std::string_view key)
{
    const auto entry = IsIndexed() ? index.find(key) : index.end();
    const bool keep = entry != index.end() && !entry->second.repeated;
    if (keep)
    {
        index.erase(entry); // before its key goes with the child
    }
    else
    {
        indexed = false;
        index.clear();
    }
    element->RemoveChild(child);
    NoteChange();
    version = element->GetUserData();
}

/// The element's user data counts the changes, so that every index of the element can see that it is stale.
void CXmlChildren::NoteChange()
{
    const auto count = reinterpret_cast<std::uintptr_t>(element->GetUserData());
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a count is all that the pointer holds.
    element->SetUserData(reinterpret_cast<void*>(count + 1));
}

} // namespace Mirel::Serialization
