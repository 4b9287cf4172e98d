#pragma once

#include "Mirel/Serialization/DataStreams.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace Mirel::Serialization
{

/// What a read of type T delivers; nothing if it gave false.
template <class T>
std::optional<T> ReadAs(const IReadDataStream& stream, const char* key)
{
    T value{};
    return stream.Read(key, value) ? std::optional<T>(value) : std::nullopt;
}

/// The text; "(null)" for a null one.
inline std::optional<std::string> ReadText(const IReadDataStream& stream, const char* key)
{
    char* text = nullptr;
    if (!stream.Read(key, text))
    {
        return std::nullopt;
    }
    const std::unique_ptr<char[]> holder(text);
    return text == nullptr ? std::string("(null)") : std::string(text);
}

struct CBytes
{
    bool isNull;
    std::string bytes;
    bool operator==(const CBytes&) const = default;
};

inline std::optional<CBytes> ReadBytes(const IReadDataStream& stream, const char* key)
{
    void* data = nullptr;
    unsigned size = 12345;
    if (!stream.Read(key, data, size))
    {
        return std::nullopt;
    }
    const std::unique_ptr<char[]> holder(static_cast<char*>(data));
    return CBytes{data == nullptr,
                  data == nullptr ? std::string(size, '?') : std::string(holder.get(), size)};
}

/// An object that writes and reads itself by two functions.
class CScripted : public ISerializable
{
public:
    using Writer = std::function<bool(IWriteDataStream&)>;
    using Reader = std::function<bool(const IReadDataStream&)>;

    explicit CScripted(Writer writer_, Reader reader_ = {})
        : writer(std::move(writer_)),
          reader(std::move(reader_))
    {
    }

    bool Serialize(IWriteDataStream& stream) const override { return writer(stream); }
    bool Deserialize(const IReadDataStream& stream) override { return reader(stream); }

private:
    Writer writer;
    Reader reader;
};

inline bool WriteObject(IWriteDataStream& stream, const char* key, CScripted::Writer writer)
{
    const CScripted object(std::move(writer));
    return stream.Write(key, static_cast<const ISerialize&>(object));
}

inline bool ReadObject(const IReadDataStream& stream, const char* key, CScripted::Reader reader)
{
    CScripted object({}, std::move(reader));
    return stream.Read(key, static_cast<IDeSerialize&>(object));
}

} // namespace Mirel::Serialization
