// The data of a state chunk: any bytes can be loaded, and the state that comes of them saves and loads again.

#include "AAXPlugin/CAAXPluginParameters.h"
#include "AAXPlugin/ChunkIds.h"
#include "AAXPlugin/Interface/AAXResults.h"
#include "AAXPlugin/Interface/QueryFor.h"
#include "Require.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace
{

using MirelExt::AAXPlugin::CAAXPluginParameters;
using MirelExt::AAXPlugin::StateChunkId;

TACFReference<AAX_IEffectParameters> MakeInstance()
{
    // No preferences of the user's. NOLINTNEXTLINE(concurrency-mt-unsafe)
    setenv("XDG_CONFIG_HOME", "/dev/null", 1);
    return TACFReference<AAX_IEffectParameters>::Adopt(new CAAXPluginParameters(""));
}

SAAXChunk* ChunkIn(std::vector<char>& bytes)
{
    return reinterpret_cast<SAAXChunk*>(bytes.data());
}

std::vector<char> MakeChunk(std::size_t dataSize)
{
    std::vector<char> bytes(sizeof(SAAXChunk) + dataSize);
    ChunkIn(bytes)->size = static_cast<std::uint32_t>(dataSize);
    ChunkIn(bytes)->chunkId = StateChunkId;
    return bytes;
}

std::vector<char> Save(AAX_IEffectParameters& instance)
{
    std::uint32_t size = 0;
    Fuzz::Require(instance.GetChunkSize(StateChunkId, &size) == AAXResult::Ok);
    std::vector<char> bytes = MakeChunk(size);
    Fuzz::Require(instance.GetChunk(StateChunkId, ChunkIn(bytes)) == AAXResult::Ok);
    return bytes;
}

} // namespace

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TACFReference<AAX_IEffectParameters> instance = MakeInstance();
    std::vector<char> foreign = MakeChunk(size);
    if (size > 0)
    {
        std::memcpy(foreign.data() + sizeof(SAAXChunk), data, size);
    }
    Fuzz::Require(instance->SetChunk(StateChunkId, ChunkIn(foreign)) == AAXResult::UnknownChunk);

    std::vector<char> saved = Save(*instance);
    instance->SetChunk(StateChunkId, ChunkIn(saved));
    Fuzz::Require(Save(*instance) == saved);
    std::int32_t equal = 0;
    Fuzz::Require(instance->CompareActiveChunk(ChunkIn(saved), &equal) == AAXResult::Ok && equal == 1);
    return 0;
}
