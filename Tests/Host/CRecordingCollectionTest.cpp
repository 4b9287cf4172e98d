#include "Host/CRecordingHost.h"

#include <gtest/gtest.h>

namespace
{

using namespace Host;

void Procedure(const AAX_InstanceRecord*, std::int32_t) {}

IACFUnknown* Create()
{
    return nullptr;
}

class Recording : public testing::Test
{
protected:
    void SetUp() override
    {
        IAAXEffectDescriptor* madeEffect = nullptr;
        ASSERT_EQ(collection->CreateEffectDescriptor(&madeEffect), 0);
        effect = TACFReference<IAAXEffectDescriptor>::Adopt(madeEffect);
        IAAXComponentDescriptor* madeComponent = nullptr;
        ASSERT_EQ(effect->CreateComponentDescriptor(&madeComponent), 0);
        component = TACFReference<IAAXComponentDescriptor>::Adopt(madeComponent);
        IAAXPropertyMap* madeMap = nullptr;
        ASSERT_EQ(component->CreatePropertyMap(&madeMap), 0);
        map = TACFReference<IAAXPropertyMap>::Adopt(madeMap);
    }

    TACFReference<CRecordingCollection> collection =
        TACFReference<CRecordingCollection>::Adopt(new CRecordingCollection);
    TACFReference<IAAXEffectDescriptor> effect;
    TACFReference<IAAXComponentDescriptor> component;
    TACFReference<IAAXPropertyMap> map;
};

TEST_F(Recording, KeepsDeclarationsInOrderAndCopiesTexts)
{
    std::string text = "maker";
    EXPECT_EQ(collection->SetPackageVersion(7), 0);
    EXPECT_EQ(collection->SetManufacturerName(text.c_str()), 0);
    text = "other";
    ASSERT_EQ(collection->GetDeclarations().size(), 2U);
    EXPECT_EQ(std::get<CPackageVersion>(collection->GetDeclarations()[0]).version, 7U);
    EXPECT_EQ(std::get<CManufacturerName>(collection->GetDeclarations()[1]).text, "maker");
}

TEST_F(Recording, CountsEffectsThatWereAdded)
{
    EXPECT_EQ(collection->GetEffectCount(), 0);
    EXPECT_EQ(collection->AddEffect("first", effect.Get()), 0);
    EXPECT_EQ(collection->AddEffect("second", effect.Get()), 0);
    EXPECT_EQ(collection->GetEffectCount(), 2);
}

TEST_F(Recording, KeepsDescriptorsAfterTheModuleReleasedThem)
{
    EXPECT_EQ(component->AddProcessProcedure(Procedure, map.Get()), 0);
    EXPECT_EQ(map->SetProperty(11, 5), 0);
    EXPECT_EQ(effect->AddComponent(component.Get()), 0);
    EXPECT_EQ(collection->AddEffect("id", effect.Get()), 0);
    map = {};
    component = {};
    effect = {};
    const auto* added = RecordsOf<CAddedEffect>(collection->GetDeclarations()).at(0);
    const auto* part = RecordsOf<CAddedComponent>(added->effect->GetDeclarations()).at(0);
    const auto* process = RecordsOf<CProcessProcedure>(part->component->GetDeclarations()).at(0);
    EXPECT_EQ(process->procedure, &Procedure);
    EXPECT_EQ(process->properties->Find(11), 5U);
}

TEST_F(Recording, RefusesNulls)
{
    EXPECT_EQ(collection->CreateEffectDescriptor(nullptr), -20004);
    EXPECT_EQ(collection->AddEffect(nullptr, effect.Get()), -20004);
    EXPECT_EQ(collection->AddEffect("id", nullptr), -20004);
    EXPECT_EQ(collection->SetManufacturerName(nullptr), -20004);
    EXPECT_EQ(collection->AddPackageName(nullptr), -20004);
    EXPECT_EQ(effect->AddName(nullptr), -20004);
    EXPECT_EQ(effect->AddCreationProcedure(nullptr, AAX_ProcedureId::Gui), -20004);
    EXPECT_EQ(effect->CreateComponentDescriptor(nullptr), -20004);
    EXPECT_EQ(effect->AddComponent(nullptr), -20004);
    EXPECT_EQ(component->AddMidiNode(5, AAX_MidiNodeType::LocalInput, nullptr, 1), -20004);
    EXPECT_EQ(component->CreatePropertyMap(nullptr), -20004);
    EXPECT_EQ(component->AddProcessProcedure(nullptr, map.Get()), -20004);
    EXPECT_EQ(component->AddProcessProcedure(Procedure, nullptr), -20004);
    EXPECT_TRUE(collection->GetDeclarations().empty());
}

TEST_F(Recording, RefusesObjectsOfAnother)
{
    const auto other = TACFReference<CRecordingCollection>::Adopt(new CRecordingCollection);
    EXPECT_EQ(other->AddEffect("id", effect.Get()), -20004);
    IAAXEffectDescriptor* made = nullptr;
    ASSERT_EQ(collection->CreateEffectDescriptor(&made), 0);
    const auto otherEffect = TACFReference<IAAXEffectDescriptor>::Adopt(made);
    EXPECT_EQ(otherEffect->AddComponent(component.Get()), -20004);
    EXPECT_EQ(otherEffect->AddCreationProcedure(Create, AAX_ProcedureId::Gui), 0);
}

TEST_F(Recording, PropertySetAgainTakesTheNewValueInItsOldPlace)
{
    map->SetProperty(11, 1);
    map->SetProperty(12, 2);
    map->SetProperty(11, 3);
    component->AddProcessProcedure(Procedure, map.Get());
    effect->AddComponent(component.Get());
    collection->AddEffect("id", effect.Get());
    const auto* added = RecordsOf<CAddedEffect>(collection->GetDeclarations()).at(0);
    const auto* part = RecordsOf<CAddedComponent>(added->effect->GetDeclarations()).at(0);
    const auto& properties =
        RecordsOf<CProcessProcedure>(part->component->GetDeclarations()).at(0)->properties->GetProperties();
    ASSERT_EQ(properties.size(), 2U);
    EXPECT_EQ(properties[0].number, 11U);
    EXPECT_EQ(properties[0].value, 3U);
    EXPECT_EQ(properties[1].number, 12U);
}

TEST(CRecordingHost, GivesEveryCallerACollectionOfItsOwn)
{
    const auto host = TACFReference<CRecordingHost>::Adopt(new CRecordingHost);
    IAAXCollection* first = nullptr;
    IAAXCollection* second = nullptr;
    ASSERT_EQ(host->CreateCollection(&first), 0);
    ASSERT_EQ(host->CreateCollection(&second), 0);
    EXPECT_NE(first, second);
    ASSERT_EQ(host->GetCollections().size(), 2U);
    EXPECT_EQ(host->GetCollections()[0].Get(), first);
    EXPECT_EQ(host->GetCollections()[1].Get(), second);
    first->Release();
    second->Release();
    EXPECT_EQ(host->CreateCollection(nullptr), -20004);
}

} // namespace
