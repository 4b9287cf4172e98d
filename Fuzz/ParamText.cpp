#include "Mirel/DataModel/Objects/CParamDataToText.h"
#include "Mirel/DataModel/Objects/Limits.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

using namespace Mirel::DataModel::Objects;

// A skin's value format and pattern: a float, the significant digits, a metric mark, the format up to the
// first line feed, the pattern.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    float value = 0.0F;
    int digits = 0;
    if (size < sizeof(value) + sizeof(digits) + 1)
    {
        return 0;
    }
    std::memcpy(&value, data, sizeof(value));
    std::memcpy(&digits, data + sizeof(value), sizeof(digits));
    const std::size_t head = sizeof(value) + sizeof(digits);
    const bool metric = (data[head] & 1U) != 0;
    const std::string texts(reinterpret_cast<const char*>(data) + head + 1, size - head - 1);
    const std::size_t split = texts.find('\n');
    const std::string format = texts.substr(0, split);
    const std::string pattern = split == std::string::npos ? "{value}" : texts.substr(split + 1);

    const CParamInfo info(2, -value, value, value, format.c_str(), "unit", nullptr);
    CParamDataToText converter(format.c_str(), metric, pattern.c_str(), info);
    converter.SetSignificantDigits(digits);
    char* text = nullptr;
    converter.ToText(value, text);
    const std::unique_ptr<char[]> owner(text);
    if (text == nullptr || std::strlen(text) > maxExpandedText)
    {
        std::abort();
    }
    return 0;
}
