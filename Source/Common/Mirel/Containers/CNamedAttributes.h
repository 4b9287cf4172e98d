#pragma once

#include "Mirel/Containers/TStringMap.h"

#include <string>
#include <string_view>

namespace Mirel::Containers
{

/// Walks over all entries, in no particular order:
///
///     std::unique_ptr<INamedAttributesConstIterator> i(attributes.CreateIterator());
///     for (; i->IsValid(); i->Next()) { use(i->GetName(), i->GetValue()); }
///
/// Any change of the table other than a new value for an existing name ends the use of its iterators.
class INamedAttributesConstIterator
{
public:
    /// False once past the last entry; then only destruction is allowed.
    virtual bool IsValid() const = 0;
    virtual void Next() = 0;
    /// Both texts are the table's own.
    virtual const char* GetName() const = 0;
    virtual const char* GetValue() const = 0;
    virtual ~INamedAttributesConstIterator() = default;
};

/// The same with write access to the values.
class INamedAttributesIterator : public INamedAttributesConstIterator
{
public:
    /// A null text counts as the empty text.
    virtual void SetValue(const char* value) = 0;
};

/// A map from text to text: the attributes of one element, or the variables of a parser. The empty name is a
/// name like any other. Belongs to one thread.
class CNamedAttributes
{
public:
    CNamedAttributes() = default;
    CNamedAttributes(const CNamedAttributes&) = default;
    CNamedAttributes(CNamedAttributes&&) noexcept = default;
    CNamedAttributes& operator=(const CNamedAttributes&) = default;
    CNamedAttributes& operator=(CNamedAttributes&&) noexcept = default;

    /// The value's text, owned by the table and valid until the entry changes; null for a null or unknown
    /// name.
    virtual const char* Get(const char* name) const;

    /// A new iterator on the first entry; the caller destroys it.
    virtual INamedAttributesConstIterator* CreateIterator() const;
    virtual INamedAttributesIterator* CreateIterator();

    virtual ~CNamedAttributes() = default;

    /// Adds or replaces. A null name is ignored; a null value counts as the empty text.
    virtual void Set(const char* name, const char* value);

    /// Does nothing for a null or unknown name.
    virtual void Remove(const char* name);

    virtual void Clear();

    int GetCount() const { return static_cast<int>(values.size()); }

    /// Set for texts that are at hand with their lengths.
    void Assign(std::string_view name, std::string value);

    /// Calls visit(name, value) for every entry, both as strings; the value may be changed where the table
    /// may. No entry may come or go meanwhile.
    template <class Visitor>
    void Visit(Visitor visit) const
    {
        for (const auto& [name, value] : values)
        {
            visit(name, value);
        }
    }

    template <class Visitor>
    void Visit(Visitor visit)
    {
        for (auto& [name, value] : values)
        {
            visit(name, value);
        }
    }

private:
    TStringMap<std::string> values;
};

} // namespace Mirel::Containers
