// A file and, after a byte that no UTF-8 text has, a value to write.

#include "DataObjectChecks.h"
#include "Mirel/Serialization/CIniDataObject.h"

#include <cstddef>

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(data, data + size);
    const std::size_t end = std::min(input.find('\xFF'), input.size());
    Fuzz::CheckTextForm(input.substr(0, end), input.substr(std::min(end + 1, input.size())),
                        [] { return std::make_unique<Mirel::Serialization::CIniDataObject>(); });
    return 0;
}
