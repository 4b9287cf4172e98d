#include "Mirel/Containers/CNamedAttributes.h"

#include <utility>

namespace Mirel::Containers
{

namespace
{

template <class I, class Position>
class TIterator : public I
{
public:
    TIterator(Position first, Position end_) : position(first), end(end_) {}

    bool IsValid() const override { return position != end; }
    void Next() override { ++position; }
    const char* GetName() const override { return position->first.c_str(); }
    const char* GetValue() const override { return position->second.c_str(); }

protected:
    Position position;

private:
    Position end;
};

using Table = TStringMap<std::string>;
using CConstIterator = TIterator<INamedAttributesConstIterator, Table::const_iterator>;

class CIterator : public TIterator<INamedAttributesIterator, Table::iterator>
{
public:
    using TIterator::TIterator;
    void SetValue(const char* value) override { position->second = value == nullptr ? "" : value; }
};

} // namespace

const char* CNamedAttributes::Get(const char* name) const
{
    if (name == nullptr)
    {
        return nullptr;
    }
    const auto entry = values.find(name);
    return entry == values.end() ? nullptr : entry->second.c_str();
}

INamedAttributesConstIterator* CNamedAttributes::CreateIterator() const
{
    return new CConstIterator(values.begin(), values.end());
}

INamedAttributesIterator* CNamedAttributes::CreateIterator()
{
    return new CIterator(values.begin(), values.end());
}

void CNamedAttributes::Set(const char* name, const char* value)
{
    if (name == nullptr)
    {
        return;
    }
    // A copy first: the value may be a part of what it replaces.
    Assign(name, value == nullptr ? "" : value);
}

void CNamedAttributes::Assign(std::string_view name, std::string value)
{
    const auto entry = values.find(name);
    if (entry != values.end())
    {
        entry->second = std::move(value);
        return;
    }
    values.emplace(name, std::move(value));
}

void CNamedAttributes::Remove(const char* name)
{
    if (name == nullptr)
    {
        return;
    }
    const auto entry = values.find(name);
    if (entry != values.end())
    {
        values.erase(entry);
    }
}

void CNamedAttributes::Clear()
{
    values.clear();
}

} // namespace Mirel::Containers
