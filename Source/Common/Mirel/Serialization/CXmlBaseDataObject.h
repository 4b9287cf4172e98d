#pragma once

#include "Mirel/Serialization/CXmlChildren.h"
#include "Mirel/Serialization/DataStreams.h"
#include "Mirel/Serialization/IContentSource.h"

#include <string>

namespace Mirel::Serialization
{

/// A data object over one element of an XML document, which it does not own. All values are stored as text,
/// so a number can be read as another kind of number, and a malformed one reads true and leaves the target
/// alone. Without an element every read and write gives false. Belongs to one thread.
///
/// What was written reads back the same after the document was saved and loaded; what would not gives false
/// and stores nothing:
/// - a key that is no XML name, in modes 0 and 2 (IsXmlName); in mode 1 a key that no attribute keeps;
/// - a text that is not UTF-8; a text of nothing but white space that includes a carriage return; in mode 2 a
///   text with "&#x" in it (XmlText.h says why);
/// - objects nested deeper, and attributes longer, than CLimits has it.
/// Two losses are part of the form: a null text is stored as the empty text, and infinities and NaN are
/// written but leave the reader's value as it is.
class CXmlBaseDataObject : public IReadWriteDataStream, public IContentSource
{
public:
    /// mode is one of CXmlMode.
    CXmlBaseDataObject(TiXmlElement* element_, int mode_)
        : element(element_),
          mode(mode_),
          children(element_, mode_)
    {
    }

    bool Read(const char* key, bool& value) const override;
    bool Read(const char* key, int& value) const override;
    bool Read(const char* key, float& value) const override;
    bool Read(const char* key, double& value) const override;
    /// The empty text for an element without text.
    bool Read(const char* key, char*& value) const override;
    /// Null and a size of 0, with a true result, for a text that is no base64 by its length.
    bool Read(const char* key, void*& data, unsigned& size) const override;
    bool Read(const char* key, IDeSerialize& object) const override;
    ~CXmlBaseDataObject() override = default;
    bool Exists(const char* key) const override;

    bool Write(const char* key, bool value) override;
    bool Write(const char* key, int value) override;
    bool Write(const char* key, float value) override;
    bool Write(const char* key, double value) override;
    bool Write(const char* key, const char* value) override;
    bool Write(const char* key, const void* data, unsigned size) override;
    /// Creates the nested object even if the given one cannot write itself; its result is the result.
    bool Write(const char* key, const ISerialize& object) override;
    /// The first of that key: a file can have several. A write removes them all.
    void Remove(const char* key) override;
    void Clear() override;

    /// Of several values under one key the first is copied, which is the one that is read. What holds neither
    /// text nor element may be an empty text or an empty object; it is copied as the latter.
    bool CopyContentTo(IWriteDataStream& target) const override;

protected:
    /// Puts another element, or none, in the place of the present one.
    void SetElement(TiXmlElement* newElement);
    TiXmlElement* GetElement() const { return element; }
    int GetMode() const { return mode; }

private:
    bool CopyChild(TiXmlElement& child, const char* key, IWriteDataStream& target) const;
    const char* FindText(const char* key, std::string& joined) const;
    template <class T>
    bool ReadNumber(const char* key, T& value) const;
    template <class T>
    bool WriteNumber(const char* key, const char* kind, T value);
    bool WriteText(const char* key, const char* kind, const char* text);
    TiXmlElement* NewChild(const char* key, const char* kind) const;
    bool IsKey(const char* key) const;
    void RemoveAll(const char* key);

    TiXmlElement* element;
    int mode;
    CXmlChildren children;
};

} // namespace Mirel::Serialization
