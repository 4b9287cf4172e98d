#include "AAXPlugin/Interface/AAX_VController.h"

#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/IAAXPluginDefinition.h"
#include "Host/CHostController.h"

#include <gtest/gtest.h>

namespace
{

class CNoController : public TACFObject<IAAXPluginDefinition>
{
public:
    std::int32_t GetEffectCount() override { return 0; }
};

TEST(AAX_VController, HandsEveryCallToTheHostsObject)
{
    const auto host =
        TACFReference<Host::CHostController>::Adopt(new Host::CHostController(1, 0x10002, 96000.0));
    host->GetPorts().Add({1, 2, 1});
    AAX_VController controller(static_cast<IAAXController*>(host.Get()));
    ASSERT_TRUE(controller);
    std::uint32_t format = 0;
    EXPECT_EQ(controller.GetInputStemFormat(&format), 0);
    EXPECT_EQ(format, 1U);
    EXPECT_EQ(controller.GetOutputStemFormat(&format), 0);
    EXPECT_EQ(format, 0x10002U);
    double rate = 0.0;
    EXPECT_EQ(controller.GetSampleRate(&rate), 0);
    EXPECT_EQ(rate, 96000.0);
    EXPECT_EQ(controller.SetSignalLatency(17), 0);
    EXPECT_EQ(host->GetLatency(), 17);
    EXPECT_EQ(controller.PostPacket(1, "ab", 2), 0);
    EXPECT_EQ(controller.PostPacket(1, "ab", 1), -20004) << "the port takes two bytes";
    EXPECT_EQ(controller.GetAutomationDelegate()->PostTouch("P1"), 0);
    EXPECT_EQ(host->TakePosts().size(), 1U);
}

TEST(AAX_VController, WithoutAControllerHoldsNothingAndFails)
{
    const auto other = TACFReference<CNoController>::Adopt(new CNoController);
    for (IACFUnknown* unknown : {static_cast<IACFUnknown*>(nullptr), static_cast<IACFUnknown*>(other.Get())})
    {
        AAX_VController controller(unknown);
        EXPECT_FALSE(controller);
        std::uint32_t format = 5;
        double rate = 6.0;
        EXPECT_EQ(controller.GetInputStemFormat(&format), -20004);
        EXPECT_EQ(controller.GetOutputStemFormat(&format), -20004);
        EXPECT_EQ(controller.GetSampleRate(&rate), -20004);
        EXPECT_EQ(controller.SetSignalLatency(1), -20004);
        EXPECT_EQ(controller.PostPacket(1, "a", 1), -20004);
        EXPECT_FALSE(controller.GetAutomationDelegate());
        EXPECT_EQ(format, 5U);
        EXPECT_EQ(rate, 6.0);
    }
}

TEST(AAX_VController, LeavesNoReferenceBehind)
{
    const auto host = TACFReference<Host::CHostController>::Adopt(new Host::CHostController(1, 1, 48000.0));
    {
        const AAX_VController controller(static_cast<IAAXController*>(host.Get()));
        const auto automation = controller.GetAutomationDelegate();
        EXPECT_EQ(host->AddReference(), 4U) << "ours, the two handles, the one just added";
        host->Release();
    }
    EXPECT_EQ(host->AddReference(), 2U);
    host->Release();
}

} // namespace
