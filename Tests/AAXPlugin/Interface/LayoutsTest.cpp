#include "AAXPlugin/Interface/AAX_Chunk.h"
#include "AAXPlugin/Interface/AAX_Midi.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <vector>

namespace
{

using testing::ElementsAre;

TEST(SAAXChunk, FieldsStandAtTheirOffsets)
{
    std::array<unsigned char, 60> bytes = {};
    SAAXChunk chunk = {};
    chunk.size = 0x04030201;
    chunk.version = 0x08070605;
    chunk.manufacturerId = 0x0C0B0A09;
    chunk.productId = 0x100F0E0D;
    chunk.pluginId = 0x14131211;
    chunk.chunkId = 0x18171615;
    chunk.name[0] = 0x19;
    chunk.name[31] = 0x38;
    std::memcpy(bytes.data(), &chunk, sizeof(chunk));
    for (unsigned char i = 0; i < 25; ++i)
    {
        EXPECT_EQ(bytes[i], i + 1) << "offset " << int{i};
    }
    EXPECT_EQ(bytes[55], 0x38);
}

TEST(SAAXChunk, DataBeginAt56)
{
    SAAXChunk chunk = {};
    EXPECT_EQ(ChunkData(&chunk) - reinterpret_cast<char*>(&chunk), 56);
    const SAAXChunk& readOnly = chunk;
    EXPECT_EQ(ChunkData(&readOnly), ChunkData(&chunk));
}

TEST(SMidiEvent, IsFourteenBytesWithTheStatusAtEight)
{
    const SMidiEvent event = MakeMidiEvent(0x01020304, 0xB5, 0x40, 0x7F);
    std::array<unsigned char, sizeof(event)> bytes = {};
    std::memcpy(bytes.data(), &event, sizeof(event));
    EXPECT_THAT(bytes, ElementsAre(4, 3, 2, 1, 3, 0, 0, 0, 0xB5, 0x40, 0x7F, 0, 0, 0));
}

} // namespace
