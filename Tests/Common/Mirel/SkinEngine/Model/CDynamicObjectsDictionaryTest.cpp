#include "Mirel/SkinEngine/Model/CDynamicObjectsDictionary.h"

#include "Mirel/Core/TArgCommand.h"
#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/Runtime/CDynamicObject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

struct CMortal : Runtime::CDynamicObject
{
    explicit CMortal(int* deaths_) : deaths(deaths_) {}
    CMortal(const CMortal&) = delete;
    CMortal& operator=(const CMortal&) = delete;
    ~CMortal() override { ++*deaths; }
    int* deaths;
};

/// Writes down what a dictionary tells.
class CListener
{
public:
    explicit CListener(const ISkinDynamicObjectsDictionary& dictionary_) : dictionary(dictionary_)
    {
        dictionary.GetAddedEventProvider().Connect(added);
        dictionary.GetRemovedEventProvider().Connect(removed);
    }
    CListener(const CListener&) = delete;
    CListener& operator=(const CListener&) = delete;
    ~CListener()
    {
        dictionary.GetAddedEventProvider().Disconnect(&added);
        dictionary.GetRemovedEventProvider().Disconnect(&removed);
    }

    std::vector<std::string> told;

private:
    void OnAdded(const CDictionaryEntry& entry)
    {
        told.push_back(std::string("+") + entry.id + (entry.owned ? " owned" : ""));
        EXPECT_EQ(dictionary.Find(entry.id), entry.object);
    }

    void OnRemoved(const CDictionaryEntry& entry)
    {
        told.push_back(std::string("-") + entry.id);
        // The object still lives, but its name is free.
        EXPECT_STREQ(entry.object->GetTypeInfo().GetClassName(), "CDynamicObject");
        EXPECT_EQ(dictionary.Find(entry.id), nullptr);
    }

    const ISkinDynamicObjectsDictionary& dictionary;
    Core::TArgCommand<CListener, const CDictionaryEntry&> added{this, &CListener::OnAdded};
    Core::TArgCommand<CListener, const CDictionaryEntry&> removed{this, &CListener::OnRemoved};
};

std::vector<std::string> IdsOf(const ISkinDynamicObjectsDictionary& dictionary)
{
    std::vector<std::string> ids;
    const std::unique_ptr<ISkinDynamicObjectsConstIterator> entry(dictionary.CreateIterator());
    for (; entry->IsValid(); entry->Next())
    {
        ids.emplace_back(entry->GetId());
    }
    return ids;
}

TEST(CDynamicObjectsDictionary, FindsWhatWasAddedByItsExactText)
{
    CDynamicObjectsDictionary dictionary;
    Runtime::CDynamicObject object;
    EXPECT_TRUE(dictionary.Add("Knob.min[3] \xC3\xA4", &object, false));
    EXPECT_EQ(dictionary.Find("Knob.min[3] \xC3\xA4"), &object);
    EXPECT_EQ(std::as_const(dictionary).Find("Knob.min[3] \xC3\xA4"), &object);
    EXPECT_EQ(dictionary.Find("knob.min[3] \xC3\xA4"), nullptr);
    EXPECT_EQ(dictionary.Find("Knob.min[3]"), nullptr);
    EXPECT_EQ(dictionary.GetCount(), 1);
}

TEST(CDynamicObjectsDictionary, KnowsNothingOfNull)
{
    CDynamicObjectsDictionary dictionary;
    Runtime::CDynamicObject object;
    bool owned = true;
    EXPECT_FALSE(dictionary.Add(nullptr, &object, false));
    EXPECT_FALSE(dictionary.Add("a", nullptr, false));
    EXPECT_EQ(dictionary.Find(nullptr), nullptr);
    EXPECT_FALSE(dictionary.Remove(nullptr));
    EXPECT_EQ(dictionary.Detach(nullptr, owned), nullptr);
    EXPECT_EQ(dictionary.GetCount(), 0);
}

TEST(CDynamicObjectsDictionary, ASecondObjectOfTheSameIdIsReportedAndTheFirstKept)
{
    CoreUtilities::CMemMessageLog log;
    CDynamicObjectsDictionary dictionary(&log);
    Runtime::CDynamicObject first;
    Runtime::CDynamicObject second;
    dictionary.Add("knob", &first, false);
    EXPECT_FALSE(dictionary.Add("knob", &second, false));
    EXPECT_EQ(dictionary.Find("knob"), &first);
    ASSERT_EQ(log.GetMessages().size(), 1U);
    EXPECT_EQ(log.GetMessages()[0].text,
              "'knob' : this object identifier already exists, use another identifier.");
    EXPECT_EQ(log.GetMessages()[0].kind, CoreUtilities::CMessageKind::Error);
}

TEST(CDynamicObjectsDictionary, WithoutALogADuplicateIsRefusedInSilence)
{
    CDynamicObjectsDictionary dictionary;
    Runtime::CDynamicObject object;
    dictionary.Add("knob", &object, false);
    EXPECT_FALSE(dictionary.Add("knob", &object, false));
    EXPECT_EQ(dictionary.GetLog(), nullptr);
}

TEST(CDynamicObjectsDictionary, DestroysOwnedObjectsOnly)
{
    int deaths = 0;
    CMortal borrowed(&deaths);
    {
        CDynamicObjectsDictionary dictionary;
        dictionary.Add("owned", new CMortal(&deaths), true);
        dictionary.Add("borrowed", &borrowed, false);
        dictionary.Add("left", new CMortal(&deaths), true);
        EXPECT_TRUE(dictionary.Remove("owned"));
        EXPECT_EQ(deaths, 1);
        EXPECT_TRUE(dictionary.Remove("borrowed"));
        EXPECT_EQ(deaths, 1);
        EXPECT_FALSE(dictionary.Remove("owned"));
    }
    EXPECT_EQ(deaths, 2);
}

TEST(CDynamicObjectsDictionary, DetachHandsTheObjectBackAliveAndSaysWhoOwnsIt)
{
    int deaths = 0;
    CDynamicObjectsDictionary dictionary;
    auto* object = new CMortal(&deaths);
    Runtime::CDynamicObject borrowed;
    dictionary.Add("mine", object, true);
    dictionary.Add("yours", &borrowed, false);
    bool owned = false;
    const std::unique_ptr<Runtime::IDynamicObject> detached(dictionary.Detach("mine", owned));
    EXPECT_EQ(detached.get(), object);
    EXPECT_TRUE(owned);
    EXPECT_EQ(deaths, 0);
    EXPECT_EQ(dictionary.Detach("yours", owned), &borrowed);
    EXPECT_FALSE(owned);
    EXPECT_EQ(dictionary.GetCount(), 0);
}

TEST(CDynamicObjectsDictionary, ListenersAreToldOfEachAdditionAndRemoval)
{
    Runtime::CDynamicObject borrowed;
    CDynamicObjectsDictionary dictionary;
    CListener listener(dictionary);
    bool owned = false;
    dictionary.Add("a", new Runtime::CDynamicObject, true);
    dictionary.Add("b", &borrowed, false);
    dictionary.Add("b", &borrowed, false);
    dictionary.Detach("b", owned);
    dictionary.Remove("b");
    dictionary.Add("c", &borrowed, false);
    dictionary.Clear();
    EXPECT_THAT(listener.told, ElementsAre("+a owned", "+b", "-b", "+c", "-c", "-a"));
    EXPECT_EQ(dictionary.GetCount(), 0);
}

TEST(CDynamicObjectsDictionary, AListenerMayTakeTheEntryOutAgain)
{
    struct CRefuser
    {
        void Refuse(const CDictionaryEntry& entry) { dictionary.Remove(entry.id); }
        CDynamicObjectsDictionary& dictionary;
    };
    int deaths = 0;
    CDynamicObjectsDictionary dictionary;
    CRefuser refuser{dictionary};
    Core::TArgCommand<CRefuser, const CDictionaryEntry&> command(&refuser, &CRefuser::Refuse);
    dictionary.GetAddedEventProvider().Connect(command);
    EXPECT_TRUE(dictionary.Add("a", new CMortal(&deaths), true));
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(dictionary.Find("a"), nullptr);
    EXPECT_THAT(IdsOf(dictionary), IsEmpty());
}

TEST(CDynamicObjectsDictionary, AnIteratorReachesTheObjectsForWriting)
{
    CDynamicObjectsDictionary dictionary;
    Runtime::CDynamicObject object;
    dictionary.Add("a", &object, false);
    const std::unique_ptr<ISkinDynamicObjectsIterator> entry(dictionary.CreateIterator());
    ASSERT_TRUE(entry->IsValid());
    EXPECT_EQ(&entry->GetObject(), &object);
    entry->Next();
    EXPECT_FALSE(entry->IsValid());
}

RC_GTEST_PROP(CDynamicObjectsDictionary, BehavesAsAListOfNamesInOrderOfAddition, ())
{
    CDynamicObjectsDictionary dictionary;
    std::vector<std::string> expected;
    const auto steps = *rc::gen::container<std::vector<std::pair<int, int>>>(
        rc::gen::pair(rc::gen::inRange(0, 3), rc::gen::inRange(0, 8)));
    for (const auto& [operation, name] : steps)
    {
        const std::string id = "object" + std::to_string(name);
        const auto position = std::find(expected.begin(), expected.end(), id);
        const bool known = position != expected.end();
        if (operation == 0)
        {
            auto object = std::make_unique<Runtime::CDynamicObject>();
            const bool added = dictionary.Add(id.c_str(), object.get(), true);
            RC_ASSERT(added == !known);
            if (added)
            {
                static_cast<void>(object.release());
                expected.push_back(id);
            }
        }
        else if (operation == 1)
        {
            RC_ASSERT(dictionary.Remove(id.c_str()) == known);
            if (known)
            {
                expected.erase(position);
            }
        }
        else
        {
            RC_ASSERT((dictionary.Find(id.c_str()) != nullptr) == known);
        }
        RC_ASSERT(IdsOf(dictionary) == expected);
        RC_ASSERT(dictionary.GetCount() == static_cast<int>(expected.size()));
    }
}

} // namespace
} // namespace Mirel::SkinEngine
