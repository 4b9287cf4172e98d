#pragma once

#include "Mirel/Core/THolder.h"
#include "Mirel/Serialization/CIniBaseDataObject.h"

#include <cstddef>
#include <string>

namespace Mirel::Serialization
{

/// A data object that is a whole INI file: its root holds the entries before the first section.
///
///     key=value
///     [section]
///     key=value
class CIniDataObject : public CIniBaseDataObject
{
public:
    CIniDataObject();
    CIniDataObject(const CIniDataObject&) = delete;
    CIniDataObject& operator=(const CIniDataObject&) = delete;
    ~CIniDataObject() override;

    /// Replaces the content. False, with no content, for a file that is not there, is too long or has a zero
    /// in it, and where entries follow a section line without its "]". Other lines that are neither entry,
    /// section nor comment are passed over.
    bool LoadFromFile(const char* path);
    bool LoadFromMemory(const char* text, std::size_t length);

    /// False, with the text left alone, if it could not be loaded again with the same content.
    bool SaveToText(std::string& text) const;

    /// Replaces the file whole; a failure keeps the old one.
    bool SaveToFile(const char* path) const;

private:
    explicit CIniDataObject(CIniStore* store_);
    bool Load(const std::string& text);
    bool HasOpenSection() const;
    bool IsStorable() const;

    Core::THolder<CIniStore> ownedStore;
};

} // namespace Mirel::Serialization
