#include "Mirel/Math/FunctionsRegistration.h"

#include "FunctionTables.h"
#include "Mirel/Math/IFunction.h"
#include "Mirel/Runtime/CObjectsFactory.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <iterator>
#include <vector>

namespace Mirel::Math
{
namespace
{

struct CKeys
{
    const char* classKey;
    const char* interfaceKey;
};

constexpr const char* ofOne = "{EC7456EE-AA8C-421c-B49E-3E5CA6519665}";
constexpr const char* ofTwo = "{C3FE0CFA-7AAC-413b-B803-A9B885B86EE1}";
constexpr const char* constant = "{EAD44198-7EE3-4880-BC12-476597EF40AA}";

const CKeys composites[] = {
    {"{72E2E475-5248-41cb-BBE2-9E1F1E4BAF30}", ofOne},    // constant
    {"{D21815E0-885C-4996-B493-90E08E953055}", ofTwo},    // constant
    {"{709DCE8B-8C2B-44c4-AF00-EF02D7F53121}", ofOne},    // proxy
    {"{3F409A8F-20F5-4531-80DA-99441215C125}", ofTwo},    // proxy
    {"{C6B18AB7-10C4-46c3-975E-91255060ECA9}", ofOne},    // composition of a list
    {"{D9BEEC6F-C530-46c7-A19C-FF009E5E2C26}", ofTwo},    // composition
    {"{83F37E7C-0ABF-4083-9F35-DD6310CC0951}", constant}, // composition
    {"{FA439331-DF20-4e00-8922-1FEEE83F9B39}", ofOne},    // combination
    {"{A8FBFEF4-0FFE-41a6-83AC-D8B94B84AABF}", ofTwo},    // combination
    {"{5145420A-1DCF-449e-8AC4-0006CF96D0F2}", constant}, // combination
    {"{852FDB81-5DDA-4440-9598-AF98A8CFBC3D}", ofOne},    // history of values
    {"{D4E5AB2C-72BD-446e-BC18-BA7745DCA94A}", ofTwo},    // history of curves
    {"{1AB22102-22F5-45b9-BDAF-54B85C61968F}", ofOne},    // linear table
    {"{231C870E-FE12-41c6-8C0D-922CA68AD4F4}", ofOne},    // nearest table
    {"{CBE364D9-829B-4dd4-91B0-69DE39D28923}", ofOne},    // spline table
    {"{AAC13163-0B6E-4a60-A1BE-257878A0B336}", ofOne},    // ring
    {"{C2D27847-1FD3-461e-9E92-922EAE3D07E2}", ofOne},    // earlier ring
};

} // namespace

TEST(FunctionsRegistration, InterfaceKeysAreThoseOfSavedFunctions)
{
    EXPECT_STREQ(IFunction::classKey, ofOne);
    EXPECT_STREQ(IBinaryFunction::classKey, ofTwo);
    EXPECT_STREQ(IConstant::classKey, constant);
}

TEST(FunctionsRegistration, EveryClassIsCreatedAsItselfAndAsItsInterface)
{
    std::vector<CKeys> classes(std::begin(composites), std::end(composites));
    for (const CFunctionRow& row : functionRows)
    {
        classes.push_back({row.key, ofOne});
    }
    for (const CBinaryFunctionRow& row : binaryFunctionRows)
    {
        classes.push_back({row.key, ofTwo});
    }
    const auto& factory = Runtime::CObjectsFactory::Instance();
    for (const CKeys& keys : classes)
    {
        EXPECT_NE(factory.Find(keys.classKey, keys.classKey), nullptr) << keys.classKey;
        for (const char* interfaceKey : {ofOne, ofTwo, constant})
        {
            EXPECT_EQ(factory.Find(keys.classKey, interfaceKey) != nullptr, interfaceKey == keys.interfaceKey)
                << keys.classKey << " as " << interfaceKey;
        }
    }
}

TEST(FunctionsRegistration, RegisteringAgainKeepsTheFirst)
{
    const auto& factory = Runtime::CObjectsFactory::Instance();
    const char* key = composites[0].classKey;
    const auto* before = factory.Find(key, ofOne);
    EXPECT_TRUE(RegisterFunctions());
    EXPECT_EQ(factory.Find(key, ofOne), before);
}

TEST(FunctionsRegistration, ALoadedModuleHasTheClassesThatItNamesNowhere)
{
    void* handle = dlopen(FUNCTIONS_MODULE, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(handle, nullptr);
    using CEvaluate = float(const char*, float);
    auto* evaluate = reinterpret_cast<CEvaluate*>(dlsym(handle, "EvaluateFunctionOfKey"));
    ASSERT_NE(evaluate, nullptr);
    EXPECT_EQ(evaluate("{F31A0DDB-1670-420a-AA0B-4AED41271DBC}", 3.0f), 9.0f);
    EXPECT_EQ(evaluate("{C6B18AB7-10C4-46c3-975E-91255060ECA9}", 3.0f), 3.0f);
    EXPECT_EQ(evaluate("{852FDB81-5DDA-4440-9598-AF98A8CFBC3D}", 3.0f), 0.0f);
    EXPECT_EQ(evaluate("{00000000-0000-0000-0000-000000000000}", 3.0f), -1.0f);
    EXPECT_EQ(dlclose(handle), 0);
}

} // namespace Mirel::Math
