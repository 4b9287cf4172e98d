#pragma once

#include "Mirel/Core/NewText.h"
#include "Mirel/Serialization/DataStreams.h"

#include <cstddef>
#include <cstring>
#include <iterator>
#include <limits>
#include <span>
#include <string_view>

namespace Fuzz
{

/// Answers every read with the next bytes of the input, until they are used up: numbers with a taste for the
/// odd, texts out of a list, and objects within objects that no document of a corpus has.
class CByteStream : public Mirel::Serialization::IReadDataStream
{
public:
    /// Neither is owned; there must be a text.
    CByteStream(std::string_view bytes_, std::span<const char* const> texts_) : bytes(bytes_), texts(texts_)
    {
    }

    bool Read(const char*, bool& value) const override
    {
        value = Next() % 8 == 0;
        return !bytes.empty();
    }

    bool Read(const char* key, int& value) const override
    {
        const int byte = Next();
        value = byte % 9 - 1;
        const bool isCount = std::strstr(key, "Count") != nullptr && std::strcmp(key, "pointsCount") != 0;
        if (isCount && byte > 250)
        {
            value = 1 << (byte % 32); // beyond the limits, too
        }
        return !bytes.empty();
    }

    bool Read(const char*, float& value) const override
    {
        const float limit = std::numeric_limits<float>::infinity();
        const float odd[] = {std::numeric_limits<float>::quiet_NaN(), limit, -limit, 1e-45f, 3e38f, -0.0f};
        const auto byte = static_cast<std::size_t>(Next());
        value = byte < std::size(odd) ? odd[byte] : static_cast<float>(byte) - 100.0f;
        return !bytes.empty();
    }

    bool Read(const char*, double&) const override { return false; }

    bool Read(const char*, char*& value) const override
    {
        value = Mirel::Core::NewText(texts[static_cast<std::size_t>(Next()) % texts.size()]);
        return true;
    }

    bool Read(const char*, void*&, unsigned&) const override { return false; }

    bool Read(const char*, Mirel::Serialization::IDeSerialize& object) const override
    {
        constexpr int maxDepth = 128;
        if (bytes.empty() || depth == maxDepth)
        {
            return false;
        }
        ++depth;
        const bool read = object.Deserialize(*this);
        --depth;
        return read;
    }

    bool Exists(const char*) const override { return Next() % 8 != 0; }

private:
    int Next() const
    {
        if (bytes.empty())
        {
            return 0;
        }
        const auto byte = static_cast<unsigned char>(bytes.front());
        bytes.remove_prefix(1);
        return byte;
    }

    mutable std::string_view bytes;
    std::span<const char* const> texts;
    mutable int depth = 0;
};

} // namespace Fuzz
