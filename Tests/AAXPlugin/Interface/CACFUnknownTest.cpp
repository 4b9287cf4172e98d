#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/IAAXCollection.h"
#include "AAXPlugin/Interface/IAAXPluginDefinition.h"
#include "AAXPlugin/Interface/IAAXPropertyMap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <thread>
#include <vector>

namespace
{

class CTwoFaces : public TACFObject<IAAXPropertyMap, IAAXPluginDefinition>
{
public:
    explicit CTwoFaces(bool* destroyed_ = nullptr) : destroyed(destroyed_) {}

    ~CTwoFaces() override
    {
        if (destroyed != nullptr)
        {
            *destroyed = true;
        }
    }

    std::int32_t SetProperty(std::uint32_t, std::uint32_t) override { return 11; }
    std::int32_t GetEffectCount() override { return 22; }

private:
    bool* destroyed;
};

TEST(CACFUnknown, LastReleaseDestroysTheObject)
{
    bool destroyed = false;
    auto* object = new CTwoFaces(&destroyed);
    EXPECT_EQ(object->AddReference(), 2U);
    EXPECT_EQ(object->Release(), 1U);
    EXPECT_FALSE(destroyed);
    EXPECT_EQ(object->Release(), 0U);
    EXPECT_TRUE(destroyed);
}

TEST(CACFUnknown, LiveCountFollowsObjectsNotReferences)
{
    const std::int32_t before = CACFUnknown::GetLiveCount();
    auto* first = new CTwoFaces;
    auto* second = new CTwoFaces;
    first->AddReference();
    EXPECT_EQ(CACFUnknown::GetLiveCount(), before + 2);
    second->Release();
    first->Release();
    EXPECT_EQ(CACFUnknown::GetLiveCount(), before + 1);
    first->Release();
    EXPECT_EQ(CACFUnknown::GetLiveCount(), before);
}

TEST(CACFUnknown, QueryGivesTheInterfaceItselfWithAReference)
{
    auto* object = new CTwoFaces;
    void* found = nullptr;
    ASSERT_EQ(object->QueryInterface(InterfaceIdOf<IAAXPluginDefinition>, &found), 0);
    auto* definition = static_cast<IAAXPluginDefinition*>(found);
    EXPECT_EQ(definition->GetEffectCount(), 22);
    ASSERT_EQ(definition->QueryInterface(InterfaceIdOf<IAAXPropertyMap>, &found), 0);
    auto* map = static_cast<IAAXPropertyMap*>(found);
    EXPECT_EQ(map->SetProperty(0, 0), 11);
    EXPECT_EQ(map->Release(), 2U);
    EXPECT_EQ(definition->Release(), 1U);
    EXPECT_EQ(object->Release(), 0U);
}

TEST(CACFUnknown, EveryInterfaceAnswersWithTheSameUnknown)
{
    auto* object = new CTwoFaces;
    void* fromFirst = nullptr;
    void* fromSecond = nullptr;
    static_cast<IAAXPropertyMap*>(object)->QueryInterface(InterfaceIdOf<IACFUnknown>, &fromFirst);
    static_cast<IAAXPluginDefinition*>(object)->QueryInterface(InterfaceIdOf<IACFUnknown>, &fromSecond);
    EXPECT_NE(fromFirst, nullptr);
    EXPECT_EQ(fromFirst, fromSecond);
    object->Release();
    object->Release();
    object->Release();
}

TEST(CACFUnknown, QueryForAnInterfaceNotOfferedGivesNullAndNoReference)
{
    auto* object = new CTwoFaces;
    void* found = object;
    EXPECT_EQ(object->QueryInterface(InterfaceIdOf<IAAXCollection>, &found), -20009);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(object->QueryInterface(InterfaceIdOf<IACFUnknown>, nullptr), -20004);
    EXPECT_EQ(object->Release(), 0U);
}

TEST(CACFUnknown, ReferencesAndLiveCountStandManyThreads)
{
    const std::int32_t before = CACFUnknown::GetLiveCount();
    bool destroyed = false;
    auto* object = new CTwoFaces(&destroyed);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
    {
        object->AddReference();
        threads.emplace_back(
            [object]
            {
                for (int round = 0; round < 1000; ++round)
                {
                    object->AddReference();
                    (new CTwoFaces)->Release();
                    object->Release();
                }
                object->Release();
            });
    }
    object->Release();
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    EXPECT_TRUE(destroyed);
    EXPECT_EQ(CACFUnknown::GetLiveCount(), before);
}

TEST(InterfaceIds, NoTwoInterfacesShareAnIdentifier)
{
    const std::array<ACFInterfaceId, 7> ids = {InterfaceIdOf<IACFUnknown>,
                                               InterfaceIdOf<IAAXCollection>,
                                               InterfaceIdOf<IAAXComponentDescriptor>,
                                               InterfaceIdOf<IAAXEffectDescriptor>,
                                               InterfaceIdOf<IAAXHost>,
                                               InterfaceIdOf<IAAXPluginDefinition>,
                                               InterfaceIdOf<IAAXPropertyMap>};
    static_assert(sizeof(ACFInterfaceId) == 16);
    for (const ACFInterfaceId& id : ids)
    {
        EXPECT_EQ(std::count(ids.begin(), ids.end(), id), 1);
    }
}

} // namespace
