#pragma once

#include <functional>
#include <map>
#include <string>

namespace Mirel::SkinEngine
{

/// Walks the names of a map from name to T, each once, in the order of their characters. Lives no longer than
/// the map. A view for `for (const std::string& name : names)`.
template <class T>
class TFormulaNames
{
public:
    using CMap = std::map<std::string, T, std::less<>>;

    class CIterator
    {
    public:
        explicit CIterator(typename CMap::const_iterator position_) : position(position_) {}

        const std::string& operator*() const { return position->first; }
        const std::string* operator->() const { return &position->first; }

        CIterator& operator++()
        {
            ++position;
            return *this;
        }

        bool operator==(const CIterator& other) const = default;

    private:
        typename CMap::const_iterator position;
    };

    explicit TFormulaNames(const CMap& map_) : map(&map_) {}

    CIterator begin() const { return CIterator(map->begin()); }
    CIterator end() const { return CIterator(map->end()); }
    bool IsEmpty() const { return map->empty(); }

private:
    const CMap* map;
};

} // namespace Mirel::SkinEngine
