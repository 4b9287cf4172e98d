#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace MirelExt::AAXPlugin
{

/// The data of the controls chunk: named numbers of four types, in the order added. Numbers stand in it high
/// byte first, so that a session goes from one machine to another. One thread at a time.
class AAXExtChunkDataParser
{
public:
    using CValue = std::variant<float, std::int32_t, double, std::int16_t>;

    /// Names are kept as they are; those of more than 253 bytes cannot be read back.
    void AddFloat(std::string_view name, float value) { records.push_back({std::string(name), value}); }
    void AddInt32(std::string_view name, std::int32_t value)
    {
        records.push_back({std::string(name), value});
    }
    void AddDouble(std::string_view name, double value) { records.push_back({std::string(name), value}); }
    void AddInt16(std::string_view name, std::int16_t value)
    {
        records.push_back({std::string(name), value});
    }

    bool IsEmpty() const { return records.empty(); }

    /// The first record of that name as a number, whatever its type. False, with the value left alone, if
    /// there is none.
    bool FindNumber(std::string_view name, double& value) const;

    /// Forgets the records and keeps the version.
    void Clear() { records.clear(); }

    /// The version of the chunk read last, which goes into the next one written; the host's, 0 at first.
    std::int32_t GetVersion() const { return version; }

    /// In bytes, the format mark included.
    std::size_t GetDataSize() const;

    /// Writes GetDataSize bytes.
    void Write(char* data) const;

    /// Replaces the records by those of the data, as far as they are whole. Data of 4 bytes or more without
    /// the format mark gives none.
    void Read(const char* data, std::size_t size, std::int32_t newVersion);

private:
    struct CRecord
    {
        std::string name;
        CValue value;
    };

    std::vector<CRecord> records;
    std::int32_t version = 0;
};

} // namespace MirelExt::AAXPlugin
