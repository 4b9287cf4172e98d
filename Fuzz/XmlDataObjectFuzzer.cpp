// A mode, a document and, after a byte that no UTF-8 text has, a value to write.

#include "DataObjectChecks.h"
#include "Mirel/Serialization/CXmlDataObject.h"

#include <cstddef>

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    constexpr int modes = 3;
    const int mode = data[0] % modes;
    const std::string input(data + 1, data + size);
    const std::size_t end = std::min(input.find('\xFF'), input.size());
    Fuzz::CheckTextForm(input.substr(0, end), input.substr(std::min(end + 1, input.size())),
                        [mode]
                        { return std::make_unique<Mirel::Serialization::CXmlDataObject>("Root", mode); });
    return 0;
}
