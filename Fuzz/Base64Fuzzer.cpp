// The input as a text to decode and as bytes to encode.

#include "Mirel/Serialization/Base64.h"
#include "Require.h"

#include <cstring>
#include <memory>
#include <string>

using Mirel::Serialization::DecodeBase64;
using Mirel::Serialization::EncodeBase64;

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // A copy of exactly the text's size, so that a read past its end is seen.
    const std::string input(data, data + size);
    const std::size_t length = std::strlen(input.c_str());
    const std::unique_ptr<char[]> text(new char[length + 1]);
    std::memcpy(text.get(), input.c_str(), length + 1);
    std::uint32_t count = 0;
    const std::unique_ptr<char[]> decoded(DecodeBase64(text.get(), count));
    Fuzz::Require((decoded != nullptr) == (std::strlen(text.get()) % 4 == 0));
    Fuzz::Require(count <= std::strlen(text.get()) / 4 * 3);

    const std::unique_ptr<char[]> encoded(EncodeBase64(data, static_cast<std::uint32_t>(size)));
    std::uint32_t backCount = 0;
    const std::unique_ptr<char[]> back(DecodeBase64(encoded.get(), backCount));
    Fuzz::Require(backCount == size && (size == 0 || std::memcmp(back.get(), data, size) == 0));
    return 0;
}
