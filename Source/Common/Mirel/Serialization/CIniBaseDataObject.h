#pragma once

#include "Mirel/Serialization/DataStreams.h"

#include <string>

namespace Mirel::Serialization
{

class CIniStore;

/// A data object over one section of an INI store, which it does not own. A nested object of key k is the
/// section "path/k", so a tree of objects is a flat list of sections; a "/" in a key deepens the path. Keys
/// and sections are compared without regard to the case of ASCII letters. Values are text: see
/// CXmlBaseDataObject.
///
/// A write gives false and stores nothing for a key, section or text that would not be read back the same
/// (IniText.h), for objects nested deeper than CLimits has it, and for a value longer than a whole file may
/// be. A null text is stored as the empty text. Belongs to one thread.
class CIniBaseDataObject : public IReadWriteDataStream
{
public:
    /// The section's path is empty for the root.
    CIniBaseDataObject(std::string section_, CIniStore& store_);

    bool Read(const char* key, bool& value) const override;
    bool Read(const char* key, int& value) const override;
    bool Read(const char* key, float& value) const override;
    bool Read(const char* key, double& value) const override;
    bool Read(const char* key, char*& value) const override;
    /// Null and a size of 0, with a true result, for a text that is no base64 by its length.
    bool Read(const char* key, void*& data, unsigned& size) const override;
    bool Read(const char* key, IDeSerialize& object) const override;
    ~CIniBaseDataObject() override = default;
    /// Whether there is an entry or a nested section.
    bool Exists(const char* key) const override;

    bool Write(const char* key, bool value) override;
    bool Write(const char* key, int value) override;
    bool Write(const char* key, float value) override;
    bool Write(const char* key, double value) override;
    bool Write(const char* key, const char* value) override;
    bool Write(const char* key, const void* data, unsigned size) override;
    bool Write(const char* key, const ISerialize& object) override;
    /// The entry if there is one, else the nested section with all that is nested in it.
    void Remove(const char* key) override;
    /// The section with all nested sections; the root clears the whole store.
    void Clear() override;

private:
    const char* FindText(const char* key) const;
    template <class T>
    bool ReadNumber(const char* key, T& value) const;
    template <class T>
    bool WriteNumber(const char* key, T value);
    bool WriteText(const char* key, const char* text);
    std::string NestedPath(const char* key) const;

    std::string section; ///< Its full path.
    CIniStore* store;
};

} // namespace Mirel::Serialization
