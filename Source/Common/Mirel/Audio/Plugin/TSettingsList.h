#pragma once

#include "Mirel/Serialization/TStdContainerSerializer.h"
#include "Mirel/Serialization/TVectorSerializer.h"

#include <cstddef>
#include <deque>

namespace Mirel::Audio::Plugin
{

/// One setting per parameter. The count and the addresses stay as they were made, so that the audio thread
/// walks the list without a lock while others change its settings.
template <class S>
class TSettingsList
{
public:
    TSettingsList() = default;
    TSettingsList(const TSettingsList&) = delete;
    TSettingsList& operator=(const TSettingsList&) = delete;

    /// For the owner, while nobody else knows the list.
    template <class... Arguments>
    void Add(const Arguments&... arguments)
    {
        settings.emplace_back(arguments...);
    }

    int GetCount() const { return static_cast<int>(settings.size()); }
    const S& operator[](int index) const { return settings[static_cast<std::size_t>(index)]; }
    S& operator[](int index) { return settings[static_cast<std::size_t>(index)]; }

    auto begin() { return settings.begin(); }
    auto end() { return settings.end(); }
    std::size_t size() const { return settings.size(); }

    /// Setting by setting, as many as both have.
    void CopyFrom(const TSettingsList& other)
    {
        for (int i = 0; i < GetCount() && i < other.GetCount(); ++i)
        {
            (*this)[i] = other[i];
        }
    }

    /// Writes the list as an object under the key: the count and each setting under the item name.
    bool Write(Serialization::IWriteDataStream& stream, const char* key, const char* itemName) const
    {
        const Serialization::TVectorSerializer<TSettingsList> writer(*this, itemName);
        return stream.Write(key, static_cast<const Serialization::ISerialize&>(writer));
    }

    /// Reads as many settings as there are here and in the list read; the others keep their values. True if
    /// there was a list with a count.
    bool Read(const Serialization::IReadDataStream& stream, const char* key, const char* itemName)
    {
        Serialization::TStdContainerSerializer<TSettingsList> reader(*this, itemName);
        return stream.Read(key, static_cast<Serialization::IDeSerialize&>(reader));
    }

private:
    std::deque<S> settings;
};

} // namespace Mirel::Audio::Plugin
