#include "Host/CHostMidiNode.h"

#include "AAXPlugin/Interface/TACFReference.h"

#include <gtest/gtest.h>

namespace
{

using Host::CHostMidiNode;

TACFReference<CHostMidiNode> MakeNode(bool isInput, std::size_t capacity)
{
    return TACFReference<CHostMidiNode>::Adopt(new CHostMidiNode(isInput, capacity));
}

TEST(CHostMidiNode, InputGivesItsEventsInOrder)
{
    const auto node = MakeNode(true, 2);
    EXPECT_TRUE(node->Add(MakeMidiEvent(0, 0xB0, 1, 2)));
    EXPECT_TRUE(node->Add(MakeMidiEvent(4, 0xB1, 3, 4)));
    EXPECT_FALSE(node->Add(MakeMidiEvent(5, 0xB2, 5, 6))) << "there is no room for a third";
    const SMidiEvent* events = nullptr;
    std::int32_t count = -1;
    ASSERT_EQ(node->GetEvents(&events, &count), 0);
    ASSERT_EQ(count, 2);
    EXPECT_EQ(events[0].data[0], 0xB0);
    EXPECT_EQ(events[1].data[2], 4);
    node->Clear();
    ASSERT_EQ(node->GetEvents(&events, &count), 0);
    EXPECT_EQ(count, 0);
}

TEST(CHostMidiNode, OutputKeepsWhatIsPostedAndGivesNothing)
{
    const auto node = MakeNode(false, 1);
    const SMidiEvent event = MakeMidiEvent(0, 0xB0, 7, 8);
    EXPECT_EQ(node->PostEvent(&event), 0);
    EXPECT_EQ(node->PostEvent(&event), -20004) << "there is no room for another";
    ASSERT_EQ(node->GetAll().size(), 1U);
    EXPECT_EQ(node->GetAll()[0].data[1], 7);
    const SMidiEvent* events = &event;
    std::int32_t count = -1;
    EXPECT_EQ(node->GetEvents(&events, &count), 0);
    EXPECT_EQ(count, 0);
}

TEST(CHostMidiNode, InputTakesNoPostsAndNullIsRefused)
{
    const auto input = MakeNode(true, 1);
    const SMidiEvent event = MakeMidiEvent(0, 0xB0, 7, 8);
    EXPECT_EQ(input->PostEvent(&event), -20004);
    EXPECT_EQ(MakeNode(false, 1)->PostEvent(nullptr), -20004);
    const SMidiEvent* events = nullptr;
    std::int32_t count = 0;
    EXPECT_EQ(input->GetEvents(nullptr, &count), -20004);
    EXPECT_EQ(input->GetEvents(&events, nullptr), -20004);
}

} // namespace
