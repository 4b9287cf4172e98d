#include "Host/CDataInPorts.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{

using Host::CDataInPorts;

class DataInPorts : public testing::Test
{
protected:
    DataInPorts()
    {
        ports.Add({0, 4, 1});
        ports.Add({2, 2, 1});
    }

    std::string Delivered(std::size_t field)
    {
        ports.Deliver(fields);
        return fields[field] != nullptr ? std::string(static_cast<const char*>(fields[field]), 2) : "none";
    }

    CDataInPorts ports;
    std::vector<void*> fields = std::vector<void*>(3, this);
};

TEST_F(DataInPorts, PortWithoutAPacketIsNull)
{
    EXPECT_EQ(Delivered(0), "none");
    EXPECT_EQ(Delivered(2), "none");
    EXPECT_EQ(fields[1], this) << "no port's field is left alone";
}

TEST_F(DataInPorts, PacketIsCopiedAndDeliveredWithTheNextBlock)
{
    char packet[] = "ab";
    EXPECT_TRUE(ports.Post(2, packet, 2));
    packet[0] = 'x';
    EXPECT_EQ(Delivered(2), "ab");
    EXPECT_EQ(Delivered(2), "ab") << "it stays until there is another";
    void* const place = fields[2];
    EXPECT_TRUE(ports.Post(2, "cd", 2));
    EXPECT_EQ(std::memcmp(place, "ab", 2), 0) << "not before the next delivery";
    EXPECT_EQ(Delivered(2), "cd");
}

TEST_F(DataInPorts, LastOfSeveralPacketsIsDelivered)
{
    ports.Post(2, "ab", 2);
    ports.Post(2, "cd", 2);
    EXPECT_EQ(Delivered(2), "cd");
}

TEST_F(DataInPorts, UnknownPortWrongSizeOrNullIsRefused)
{
    EXPECT_FALSE(ports.Post(1, "ab", 2));
    EXPECT_FALSE(ports.Post(2, "abc", 3));
    EXPECT_FALSE(ports.Post(2, nullptr, 2));
    EXPECT_EQ(Delivered(2), "none");
}

} // namespace
