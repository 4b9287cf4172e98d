// The data of a controls chunk: any bytes can be read, and what was read is written so that it reads back.

#include "AAXPlugin/AAXExtChunkDataParser.h"
#include "Require.h"

#include <cstddef>
#include <cstdint>
#include <vector>

using MirelExt::AAXPlugin::AAXExtChunkDataParser;

namespace
{

std::vector<char> Written(const AAXExtChunkDataParser& parser)
{
    std::vector<char> data(parser.GetDataSize());
    parser.Write(data.data());
    return data;
}

} // namespace

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::vector<char> data(bytes, bytes + size);
    AAXExtChunkDataParser parser;
    parser.Read(data.data(), data.size(), 1);
    const std::vector<char> written = Written(parser);
    AAXExtChunkDataParser again;
    again.Read(written.data(), written.size(), 1);
    Fuzz::Require(Written(again) == written);
    return 0;
}
