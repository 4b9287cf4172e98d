#include "Mirel/Audio/Plugin/CStringCapture.h"

#include "Mirel/System/CCriticalSection.h"
#include "Support/AllocationCounter.h"

#include <gtest/gtest.h>
#include <string>

using Mirel::Audio::Plugin::CStringCapture;

namespace
{

std::string Published(const std::string& text)
{
    Mirel::System::CCriticalSection lock;
    CStringCapture capture(lock, "before");
    capture.Publish(text.c_str());
    return capture.GetText();
}

} // namespace

TEST(CStringCapture, BeginsWithTheTextOfTheDescription)
{
    Mirel::System::CCriticalSection lock;
    EXPECT_EQ(CStringCapture(lock, "none yet").GetText(), "none yet");
    EXPECT_EQ(CStringCapture(lock, nullptr).GetText(), "");
}

TEST(CStringCapture, HoldsACopyOfThePublishedText)
{
    Mirel::System::CCriticalSection lock;
    CStringCapture capture(lock, "before");
    std::string text = "C#4";
    capture.Publish(text.c_str());
    text = "other";
    EXPECT_EQ(capture.GetText(), "C#4");
    EXPECT_TRUE(capture.IsChanged());
    capture.Publish(nullptr);
    EXPECT_EQ(capture.GetText(), "");
}

TEST(CStringCapture, WhatIsTooLongIsCut)
{
    const std::string fits(255, 'x');
    EXPECT_EQ(Published(fits), fits);
    EXPECT_EQ(Published(fits + "y"), fits);
    EXPECT_EQ(Published(std::string(5000, 'x')), fits);
}

TEST(CStringCapture, ACharacterIsNeverCutInTwo)
{
    const std::string euro = "\xE2\x82\xAC";
    EXPECT_EQ(Published(std::string(252, 'x') + euro), std::string(252, 'x') + euro);
    EXPECT_EQ(Published(std::string(253, 'x') + euro), std::string(253, 'x'));
    EXPECT_EQ(Published(std::string(254, 'x') + euro), std::string(254, 'x'));
    EXPECT_EQ(Published(std::string(255, 'x') + euro), std::string(255, 'x'));
}

TEST(CStringCapture, PublishingAllocatesNothing)
{
    Mirel::System::CCriticalSection lock;
    CStringCapture capture(lock, "");
    const std::string text(1000, 'x');
    const Tests::CAllocationCounter allocations;
    capture.Publish(text.c_str());
    EXPECT_EQ(allocations.GetCount(), 0U);
}
