#include "AAXPlugin/CScriptedHost.h"
#include "AAXPlugin/Interface/AAX_VCollection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using testing::ElementsAre;
using Tests::CScriptedHost;

void Procedure(const AAX_InstanceRecord*, std::int32_t) {}

IACFUnknown* Create()
{
    return nullptr;
}

TACFReference<CScriptedHost> MakeHost()
{
    return TACFReference<CScriptedHost>::Adopt(new CScriptedHost);
}

class CNoHost : public TACFObject<IAAXPluginDefinition>
{
public:
    std::int32_t GetEffectCount() override { return 0; }
};

TEST(AAX_VCollection, HandsEveryCallToTheHostsObject)
{
    const auto host = MakeHost();
    const auto* unknown = static_cast<IAAXHost*>(host.Get());
    AAX_VCollection collection(const_cast<IAAXHost*>(unknown));
    ASSERT_TRUE(collection);
    AAX_VPlugInDescriptor effect = collection.NewDescriptor();
    ASSERT_TRUE(effect);
    EXPECT_EQ(collection.AddEffect(AAX_CString("id"), effect), 0);
    EXPECT_EQ(collection.SetManufacturerName(AAX_CString("maker")), 0);
    EXPECT_EQ(collection.AddPackageName(AAX_CString("package")), 0);
    EXPECT_EQ(collection.SetPackageVersion(3), 0);
    EXPECT_THAT(host->calls,
                ElementsAre("CreateCollection", "CreateEffectDescriptor", "AddEffect id",
                            "SetManufacturerName maker", "AddPackageName package", "SetPackageVersion 3"));
}

TEST(AAX_VCollection, WithoutAHostHoldsNothingAndFails)
{
    AAX_VCollection collection(nullptr);
    EXPECT_FALSE(collection);
    EXPECT_EQ(collection.GetUnknown(), nullptr);
    const AAX_VPlugInDescriptor effect = collection.NewDescriptor();
    EXPECT_FALSE(effect);
    EXPECT_EQ(collection.AddEffect(AAX_CString("id"), effect), -20004);
    EXPECT_EQ(collection.SetManufacturerName(AAX_CString("maker")), -20004);
    EXPECT_EQ(collection.AddPackageName(AAX_CString("package")), -20004);
    EXPECT_EQ(collection.SetPackageVersion(1), -20004);
}

TEST(AAX_VCollection, WithAnUnknownThatIsNoHostHoldsNothing)
{
    const auto other = TACFReference<CNoHost>::Adopt(new CNoHost);
    const AAX_VCollection collection(other.Get());
    EXPECT_FALSE(collection);
}

TEST(AAX_VPlugInDescriptor, EmptyOneFailsAndMakesEmptyComponents)
{
    AAX_VPlugInDescriptor effect{TACFReference<IAAXEffectDescriptor>()};
    EXPECT_EQ(effect.AddName(AAX_CString("name")), -20004);
    EXPECT_EQ(effect.AddCreationProcedure(Create, AAX_ProcedureId::Gui), -20004);
    const AAX_VComponentDescriptor component = effect.NewComponentDescriptor();
    EXPECT_FALSE(component);
    EXPECT_EQ(effect.AddComponent(component), -20004);
}

TEST(AAX_VComponentDescriptor, EmptyOneFailsAndMakesEmptyMaps)
{
    AAX_VComponentDescriptor component{TACFReference<IAAXComponentDescriptor>()};
    EXPECT_EQ(component.AddDataInPort(0, 4, 1), -20004);
    EXPECT_EQ(component.AddAudioInput(2), -20004);
    EXPECT_EQ(component.AddAudioOutput(3), -20004);
    EXPECT_EQ(component.AddAudioBufferLength(4), -20004);
    EXPECT_EQ(component.AddMidiNode(5, AAX_MidiNodeType::LocalInput, AAX_CString("in"), 1), -20004);
    AAX_VPropertyMap map = component.NewPropertyMap();
    EXPECT_FALSE(map);
    EXPECT_EQ(map.SetProperty(11, 1), -20004);
    EXPECT_EQ(component.AddProcessProcedure(Procedure, map), -20004);
}

TEST(ClientClasses, LeaveNoReferenceBehind)
{
    const auto host = MakeHost();
    {
        AAX_VCollection collection(static_cast<IAAXHost*>(host.Get()));
        AAX_VPlugInDescriptor effect = collection.NewDescriptor();
        AAX_VComponentDescriptor component = effect.NewComponentDescriptor();
        const AAX_VPropertyMap map = component.NewPropertyMap();
        ASSERT_TRUE(map);
    }
    EXPECT_EQ(host->AddReference(), 2U);
    host->Release();
}

TEST(AAX_CString, HoldsItsOwnTextZeroTerminated)
{
    AAX_CString text("abcdef");
    EXPECT_STREQ(text.Get(), "abcdef");
    text.Set(std::string_view("abcdef").substr(0, 3));
    EXPECT_STREQ(text.Get(), "abc");
    EXPECT_EQ(text.Length(), 3U);
    EXPECT_STREQ(AAX_CString().Get(), "");
}

} // namespace
