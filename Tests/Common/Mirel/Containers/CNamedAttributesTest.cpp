#include "Mirel/Containers/CNamedAttributes.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <map>
#include <memory>
#include <string>

namespace Mirel::Containers
{
namespace
{

std::map<std::string, std::string> EntriesOf(const CNamedAttributes& attributes)
{
    std::map<std::string, std::string> entries;
    const std::unique_ptr<INamedAttributesConstIterator> i(attributes.CreateIterator());
    for (; i->IsValid(); i->Next())
    {
        entries.emplace(i->GetName(), i->GetValue());
    }
    return entries;
}

TEST(CNamedAttributes, GivesTheValueOfAName)
{
    CNamedAttributes attributes;
    attributes.Set("width", "12");
    EXPECT_STREQ(attributes.Get("width"), "12");
    EXPECT_EQ(attributes.Get("height"), nullptr);
}

TEST(CNamedAttributes, ReplacesTheValueOfAnExistingName)
{
    CNamedAttributes attributes;
    attributes.Set("a", "1");
    attributes.Set("a", "2");
    EXPECT_EQ(attributes.GetCount(), 1);
    EXPECT_STREQ(attributes.Get("a"), "2");
}

TEST(CNamedAttributes, ComparesNamesAsExactText)
{
    CNamedAttributes attributes;
    attributes.Set("Width", "1");
    EXPECT_EQ(attributes.Get("width"), nullptr);
    EXPECT_EQ(attributes.Get("Width "), nullptr);
}

TEST(CNamedAttributes, IgnoresANullName)
{
    CNamedAttributes attributes;
    attributes.Set("a", "1");
    attributes.Set(nullptr, "2");
    attributes.Remove(nullptr);
    EXPECT_EQ(attributes.Get(nullptr), nullptr);
    EXPECT_EQ(attributes.GetCount(), 1);
}

TEST(CNamedAttributes, TakesTheEmptyNameForAName)
{
    CNamedAttributes attributes;
    attributes.Set("", "nothing");
    EXPECT_STREQ(attributes.Get(""), "nothing");
    attributes.Remove("");
    EXPECT_EQ(attributes.Get(""), nullptr);
}

TEST(CNamedAttributes, CopiesItsTexts)
{
    CNamedAttributes attributes;
    std::string name = "name";
    std::string value = "value";
    attributes.Set(name.c_str(), value.c_str());
    name = "other";
    value = "other";
    EXPECT_STREQ(attributes.Get("name"), "value");
}

TEST(CNamedAttributes, ReplacesAValueByItself)
{
    CNamedAttributes attributes;
    attributes.Set("a", "a text that is too long to stand inside the string object");
    attributes.Set("a", attributes.Get("a"));
    EXPECT_STREQ(attributes.Get("a"), "a text that is too long to stand inside the string object");
}

TEST(CNamedAttributes, RemovesOneName)
{
    CNamedAttributes attributes;
    attributes.Set("a", "1");
    attributes.Set("b", "2");
    attributes.Remove("unknown");
    attributes.Remove("a");
    EXPECT_EQ(EntriesOf(attributes), (std::map<std::string, std::string>{{"b", "2"}}));
}

TEST(CNamedAttributes, IsEmptyAfterClear)
{
    CNamedAttributes attributes;
    attributes.Set("a", "1");
    attributes.Clear();
    EXPECT_EQ(attributes.Get("a"), nullptr);
    const std::unique_ptr<INamedAttributesConstIterator> i(
        static_cast<const CNamedAttributes&>(attributes).CreateIterator());
    EXPECT_FALSE(i->IsValid());
}

TEST(CNamedAttributes, AnIteratorVisitsEveryEntryAndCanChangeItsValue)
{
    CNamedAttributes attributes;
    attributes.Set("a", "1");
    attributes.Set("b", "2");
    const std::unique_ptr<INamedAttributesIterator> i(attributes.CreateIterator());
    for (; i->IsValid(); i->Next())
    {
        i->SetValue((std::string(i->GetName()) + "!").c_str());
    }
    EXPECT_EQ(EntriesOf(attributes), (std::map<std::string, std::string>{{"a", "a!"}, {"b", "b!"}}));
}

TEST(CNamedAttributes, ACopyIsIndependent)
{
    CNamedAttributes attributes;
    attributes.Set("a", "1");
    CNamedAttributes copy = attributes;
    copy.Set("a", "2");
    EXPECT_STREQ(attributes.Get("a"), "1");
}

TEST(CNamedAttributes, HoldsFarMoreThanItsFirstTableSize)
{
    CNamedAttributes attributes;
    for (int i = 0; i < 1000; ++i)
    {
        attributes.Set(std::to_string(i).c_str(), std::to_string(i * i).c_str());
    }
    EXPECT_EQ(attributes.GetCount(), 1000);
    EXPECT_STREQ(attributes.Get("999"), "998001");
}

RC_GTEST_PROP(CNamedAttributes, BehavesLikeAStandardMap,
              (const std::vector<std::pair<std::uint8_t, std::string>>& operations))
{
    CNamedAttributes attributes;
    std::map<std::string, std::string> model;
    for (const auto& [choice, text] : operations)
    {
        const std::string name(1, static_cast<char>('a' + choice % 5));
        const std::string value = text.substr(0, text.find('\0'));
        if (choice < 200)
        {
            attributes.Set(name.c_str(), value.c_str());
            model[name] = value;
        }
        else
        {
            attributes.Remove(name.c_str());
            model.erase(name);
        }
        RC_ASSERT(EntriesOf(attributes) == model);
    }
}

} // namespace
TEST(CNamedAttributes, AssignAddsAndReplaces)
{
    CNamedAttributes attributes;
    attributes.Assign("a", "1");
    attributes.Assign("a", "2");
    attributes.Assign("", "empty");
    EXPECT_EQ(attributes.GetCount(), 2);
    EXPECT_STREQ(attributes.Get("a"), "2");
    EXPECT_STREQ(attributes.Get(""), "empty");
}

TEST(CNamedAttributes, VisitReachesEveryEntryAndMayChangeIt)
{
    CNamedAttributes attributes;
    attributes.Assign("a", "1");
    attributes.Assign("b", "2");
    attributes.Visit([](const std::string& name, std::string& value) { value += name; });
    std::string seen;
    const CNamedAttributes& read = attributes;
    read.Visit([&seen](const std::string&, const std::string& value) { seen += value; });
    EXPECT_TRUE(seen == "1a2b" || seen == "2b1a") << seen;
}

} // namespace Mirel::Containers
