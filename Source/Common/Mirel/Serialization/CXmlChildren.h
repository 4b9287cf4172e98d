#pragma once

#include <string_view>
#include <unordered_map>

class TiXmlElement;

namespace Mirel::Serialization
{

/// How a data object's keys map to XML.
struct CXmlMode
{
    enum : int
    {
        Elements = 0,      ///< A value of key k is the text of a child element k.
        NamedElements = 1, ///< A value is the text of a child named by its kind, with attribute "name".
        Attributes = 2     ///< A value is an attribute k.
    };
};

/// Finds the child elements of one element by key. A long list of children is indexed on the first search, so
/// that reading n keys of n children takes time in proportion to n. Several objects may stand on the same
/// element as long as all changes go through them. Does not own the element.
class CXmlChildren
{
public:
    /// The element may be null: then nothing is found.
    CXmlChildren(TiXmlElement* element_, int mode_) : element(element_), mode(mode_) {}

    /// The first child of that key: by its name, or in mode 1 by its attribute "name" whatever its name.
    TiXmlElement* Find(std::string_view key) const;

    /// Adds the child, which has its key already, at the end. The element takes it over.
    void Append(TiXmlElement* child);

    /// Destroys the first child of that key, if there is one.
    void Remove(std::string_view key);

    /// Destroys all children of that key: a file can have several, and one left over would hide what is
    /// appended.
    void RemoveAll(std::string_view key);

    /// Destroys all child nodes, also those that are no elements.
    void Clear();

private:
    struct CEntry
    {
        TiXmlElement* first;
        bool repeated; ///< Later children have the same key.
    };

    const char* KeyOf(const TiXmlElement& child) const;
    void BuildIndex() const;
    bool IsIndexed() const;
    void AddToIndex(TiXmlElement* child) const;
    void Destroy(TiXmlElement* child, std::string_view key);
    void NoteChange();

    TiXmlElement* element;
    int mode;
    mutable bool indexed = false;
    mutable const void* version = nullptr; ///< The element's version that the index shows.
    mutable std::unordered_map<std::string_view, CEntry> index; ///< The keys are the children's own texts.
};

} // namespace Mirel::Serialization
