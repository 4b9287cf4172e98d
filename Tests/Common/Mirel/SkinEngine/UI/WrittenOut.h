#pragma once

#include <algorithm>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace Tests
{

/// The counts of collections by their identifier. One that is not there has no items.
using CCounts = std::map<std::string, int>;

/// The value of an attribute in the text of a tag; empty for none.
inline std::string AttributeOf(const std::string& tag, const std::string& name)
{
    const std::string key = std::string(" ").append(name).append("='");
    const auto begin = tag.find(key);
    return begin == std::string::npos
               ? std::string()
               : tag.substr(begin + key.size(), tag.find('\'', begin + key.size()) - begin - key.size());
}

inline std::string ItemName(const std::string& collection, int index)
{
    return std::string(collection).append("[").append(std::to_string(index)).append("]");
}

inline std::string Replaced(std::string text, const std::string& what, const std::string& by)
{
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
    {
        text.replace(at, what.size(), by);
    }
    return text;
}

/// Where the element ends that begins at a place of the text, its end tag included. For COLLECTION and
/// FOREACH with an end tag of their own.
inline std::size_t EndOfCollection(const std::string& text, std::size_t begin)
{
    int depth = 0;
    for (std::size_t at = begin;; ++at)
    {
        const auto is = [&](const char* tag) { return text.compare(at, std::string(tag).size(), tag) == 0; };
        depth += is("<COLLECTION ") || is("<FOREACH ") ? 1 : 0;
        depth -= is("</COLLECTION>") || is("</FOREACH>") ? 1 : 0;
        if (depth == 0)
        {
            return text.find('>', at) + 1;
        }
    }
}

/// A skin in which each collection is replaced by its items, as an author without collections writes it.
/// Works on the text alone. The counts of collections that follow others come into the counts.
inline std::string WrittenOut(const std::string& text, CCounts& counts)
{
    const auto begin = std::min(text.find("<COLLECTION "), text.find("<FOREACH "));
    if (begin == std::string::npos)
    {
        return text;
    }
    const auto end = EndOfCollection(text, begin);
    const auto bodyBegin = text.find('>', begin) + 1;
    const std::string tag = text.substr(begin, bodyBegin - begin);
    const std::string body = text.substr(bodyBegin, text.rfind("</", end - 1) - bodyBegin);
    const std::string id = AttributeOf(tag, "id");
    const std::string itemName = AttributeOf(tag, "item_name");
    std::vector<std::string> sources;
    for (std::string rest = AttributeOf(tag, "collection_id"); !rest.empty();)
    {
        const auto length = std::min(rest.find(';'), rest.size());
        sources.push_back(rest.substr(0, length));
        rest.erase(0, length + 1);
    }
    int count = sources.empty() ? counts[id] : std::numeric_limits<int>::max();
    for (const std::string& source : sources)
    {
        count = std::min(count, counts[source]);
    }
    counts[id] = count;
    std::string items;
    for (int i = 0; i < count; ++i)
    {
        std::string item = Replaced(body, std::string("$").append(itemName).append("$"), ItemName(id, i));
        for (const std::string& source : sources)
        {
            const std::string name = std::string("$").append(source).append("_").append(itemName).append("$");
            item = Replaced(item, name, ItemName(source, i));
        }
        items += WrittenOut(item, counts);
    }
    return text.substr(0, begin).append(items).append(WrittenOut(text.substr(end), counts));
}

} // namespace Tests
