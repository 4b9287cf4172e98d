#include "ModelRig.h"

#include "Mirel/DataModel/Objects/IConstAction.h"
#include "Mirel/DataModel/Objects/CCaptureParamTimerProxy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Mirel::SkinEngine
{
namespace
{

using Tests::CModelRig;

TEST(EveryElement, Smoke)
{
    CModelRig rig;
    const std::string file = std::string(TEST_MODELS_FOLDER) + "/every_element.model";
    EXPECT_TRUE(rig.factory.Parse(file.c_str(), false));
    for (auto& l : rig.TakeMessages(true)) std::cout << l << "\n";
    for (auto& l : rig.Lines()) std::cout << l << "\n";
}

} // namespace
} // namespace Mirel::SkinEngine
