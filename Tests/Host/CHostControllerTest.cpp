#include "Host/CHostController.h"

#include "Host/CHostInstance.h"
#include "Host/CPluginSession.h"
#include "Host/TestFiles.h"

#include <gtest/gtest.h>

namespace
{

using namespace Host;
using EKind = CAutomationPost::EKind;

TACFReference<CHostController> MakeController()
{
    return TACFReference<CHostController>::Adopt(new CHostController(0x10002, 1, 44100.0));
}

TEST(CHostController, TellsChannelsAndRate)
{
    const auto controller = MakeController();
    std::uint32_t format = 0;
    double rate = 0.0;
    EXPECT_EQ(controller->GetInputStemFormat(&format), 0);
    EXPECT_EQ(format, 0x10002U);
    EXPECT_EQ(controller->GetOutputStemFormat(&format), 0);
    EXPECT_EQ(format, 1U);
    EXPECT_EQ(controller->GetSampleRate(&rate), 0);
    EXPECT_EQ(rate, 44100.0);
    EXPECT_EQ(controller->GetInputStemFormat(nullptr), -20004);
    EXPECT_EQ(controller->GetOutputStemFormat(nullptr), -20004);
    EXPECT_EQ(controller->GetSampleRate(nullptr), -20004);
}

TEST(CHostController, TakesLatencyAndPackets)
{
    const auto controller = MakeController();
    EXPECT_EQ(controller->SetSignalLatency(12), 0);
    EXPECT_EQ(controller->GetLatency(), 12);
    EXPECT_EQ(controller->PostPacket(1, "abcd", 4), -20004) << "there is no such port";
    controller->GetPorts().Add({1, 4, 1});
    EXPECT_EQ(controller->PostPacket(1, "abcd", 4), 0);
}

TEST(CHostController, KeepsPostsWithoutParameters)
{
    const auto controller = MakeController();
    EXPECT_EQ(controller->PostTouch("P1"), 0);
    EXPECT_EQ(controller->PostValue(nullptr, 0.5), 0);
    EXPECT_EQ(controller->PostRelease("P1"), 0);
    const auto posts = controller->TakePosts();
    ASSERT_EQ(posts.size(), 3U);
    EXPECT_EQ(posts[0].kind, EKind::Touch);
    EXPECT_EQ(posts[1].kind, EKind::Value);
    EXPECT_EQ(posts[1].normalized, 0.5);
    EXPECT_EQ(posts[1].parameter, -1);
    EXPECT_EQ(posts[2].kind, EKind::Release);
    EXPECT_TRUE(controller->TakePosts().empty());
}

TEST(CHostController, KeepsTheFirstOfTooManyPosts)
{
    const auto controller = MakeController();
    for (int i = 0; i < 5000; ++i)
    {
        controller->PostValue("P1", i);
    }
    const auto posts = controller->TakePosts();
    ASSERT_EQ(posts.size(), 4096U);
    EXPECT_EQ(posts.back().normalized, 4095.0);
}

class ControllerOfAnInstance : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string error;
        ASSERT_TRUE(session.Open(Tests::ScopeBankModule(), error)) << error;
        instance = CHostInstance::Make(*session.GetCollection(), {2, 48000.0}, error);
        ASSERT_NE(instance, nullptr) << error;
    }

    void TearDown() override { instance.reset(); }

    double ValueOf(const char* id)
    {
        double value = -1.0;
        EXPECT_EQ(instance->GetParameters().GetParameterValue(id, &value), 0);
        return value;
    }

    CPluginSession session;
    std::unique_ptr<CHostInstance> instance;
};

TEST_F(ControllerOfAnInstance, AnswersAPostedValueAtOnce)
{
    CHostController& controller = instance->GetController();
    EXPECT_EQ(controller.PostValue("P4", 0.25), 0);
    EXPECT_EQ(ValueOf("P4"), 0.25);
    EXPECT_EQ(controller.TakePosts().at(0).parameter, 4);
}

TEST_F(ControllerOfAnInstance, AnswersLaterWhenTold)
{
    CHostController& controller = instance->GetController();
    controller.SetAnswersAtOnce(false);
    controller.PostValue("P4", 0.25);
    controller.PostValue("P4", 0.5);
    controller.PostValue("P99", 0.5);
    EXPECT_EQ(ValueOf("P4"), 0.0);
    controller.AnswerPosts();
    EXPECT_EQ(ValueOf("P4"), 0.5);
    instance->GetParameters().SetParameterValue("P4", 1.0);
    controller.AnswerPosts();
    EXPECT_EQ(ValueOf("P4"), 1.0) << "each post is answered once";
}

} // namespace
