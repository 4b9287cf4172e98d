#include "Mirel/Serialization/CIniDataObject.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Mirel/Serialization/IndexedKey.h"
#include "Mirel/Serialization/Limits.h"
#include "Support/SmallStack.h"
#include "Support/Texts.h"
#include "Support/ThreadTime.h"
#include "Values.h"

#include <gtest/gtest.h>

#include <string>

namespace Mirel::Serialization
{
namespace
{

using Tests::Repeated;

/// The stack of a host's small thread.
constexpr std::size_t stackBytes = std::size_t{512} * 1024;

// The sanitizers' own work is no part of the promise.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr double secondsAllowed = 20.0;
#else
constexpr double secondsAllowed = 1.0;
#endif

/// Loads on a small stack and tells the result and that it came within a second.
bool LoadsInTime(const std::string& text)
{
    bool loaded = false;
    double seconds = 0.0;
    Tests::RunOnStack(stackBytes,
                      [&]
                      {
                          const double begin = Tests::ThreadSeconds();
                          CXmlDataObject object("Root");
                          loaded = object.LoadFromMemory(text.data(), text.size());
                          seconds = Tests::ThreadSeconds() - begin;
                      });
    EXPECT_LT(seconds, secondsAllowed);
    return loaded;
}

TEST(XmlLimits, RefusesAHundredMegabytesAtOnce)
{
    const std::string tenBytes = "0123456789";
    EXPECT_FALSE(LoadsInTime("<a>" + Repeated(tenBytes, 10'000'000) + "</a>"));
    EXPECT_FALSE(LoadsInTime("<a>" + std::string(CLimits::maxXmlBytes, 'x') + "</a>"));
}

TEST(XmlLimits, RefusesDeepNestingOnASmallStack)
{
    EXPECT_FALSE(LoadsInTime(Repeated("<a>", 100'000) + Repeated("</a>", 100'000)));
    EXPECT_FALSE(LoadsInTime(Repeated("<a>", 30'000)));
    EXPECT_FALSE(LoadsInTime("<r>" + Repeated("<a>", CLimits::maxXmlDepth) +
                             Repeated("</a>", CLimits::maxXmlDepth) + "</r>"));
}

TEST(XmlLimits, LoadsTheDeepestAllowedDocumentOnASmallStack)
{
    EXPECT_TRUE(LoadsInTime(Repeated("<a>", CLimits::maxXmlDepth) + Repeated("</a>", CLimits::maxXmlDepth)));
}

TEST(XmlLimits, BoundsAttributes)
{
    const std::string longest(CLimits::maxAttributeBytes, 'x');
    EXPECT_TRUE(LoadsInTime("<a k='" + longest + "'/>"));
    EXPECT_FALSE(LoadsInTime("<a k='" + longest + "x'/>"));
    std::string many = "<a";
    for (std::size_t i = 0; i <= CLimits::maxAttributes; ++i)
    {
        many += " k" + std::to_string(i) + "=''";
    }
    EXPECT_FALSE(LoadsInTime(many + "/>"));
    std::string attributes;
    for (int i = 0; i < 2000; ++i)
    {
        attributes += " k" + std::to_string(i) + "=''";
    }
    EXPECT_TRUE(LoadsInTime("<r><a" + attributes + "/></r>"));
    EXPECT_FALSE(LoadsInTime("<r>" + Repeated("<a" + attributes + "/>", 40) + "</r>"));
}

TEST(XmlLimits, BoundsTheNumberOfNodes)
{
    EXPECT_FALSE(LoadsInTime("<r>" + Repeated("<a/>", static_cast<int>(CLimits::maxXmlNodes)) + "</r>"));
}

TEST(XmlLimits, EndsEveryReferenceAtItsOwnSemicolon)
{
    EXPECT_FALSE(LoadsInTime("<a>" + Repeated("&#x", 1'000'000) + ";</a>"));
}

TEST(XmlLimits, ReadsAListOfManyChildrenInLinearTime)
{
    constexpr int count = 50'000;
    std::string text = "<r>";
    for (int i = 0; i < count; ++i)
    {
        const std::string name = IndexedKey("v", i);
        text.append("<").append(name).append(">1</").append(name).append(">");
    }
    text += "</r>";
    CXmlDataObject object("Root");
    ASSERT_TRUE(object.LoadFromMemory(text.data(), text.size()));
    int sum = 0;
    for (int i = 0; i < count; ++i)
    {
        sum += ReadAs<int>(object, IndexedKey("v", i).c_str()).value_or(0);
    }
    EXPECT_EQ(sum, count);
}

/// Writes an object into itself as deep as the stream lets it.
class CNest : public ISerialize
{
public:
    explicit CNest(int& depth_) : depth(depth_) {}
    bool Serialize(IWriteDataStream& stream) const override
    {
        ++depth;
        stream.Write("value", depth);
        return stream.Write("nest", static_cast<const ISerialize&>(*this));
    }

private:
    int& depth;
};

TEST(XmlLimits, WhatCouldBeWrittenCanBeLoadedAgain)
{
    for (const int mode : {0, 1, 2})
    {
        CXmlDataObject object("Root", mode);
        int depth = 0;
        const CNest nest(depth);
        EXPECT_FALSE(object.Write("nest", static_cast<const ISerialize&>(nest)));
        EXPECT_GT(depth, 200);
        std::string text;
        EXPECT_TRUE(object.SaveToText(text));
        EXPECT_TRUE(LoadsInTime(text));
    }
}

TEST(XmlLimits, RefusesToStoreWhatCouldNotBeLoaded)
{
    CXmlDataObject elements("Root", 0);
    const std::string longText(CLimits::maxXmlBytes + 1, 'x');
    EXPECT_FALSE(elements.Write("a", longText.c_str()));
    EXPECT_FALSE(elements.Write("a", longText.data(), static_cast<unsigned>(longText.size())));
    EXPECT_FALSE(elements.Exists("a"));
    CXmlDataObject attributes("Root", 2);
    const std::string longValue(CLimits::maxAttributeBytes + 1, 'x');
    EXPECT_FALSE(attributes.Write("a", longValue.c_str()));
    // Each fits alone; together they do not.
    const std::string half(CLimits::maxXmlBytes / 2, 'x');
    EXPECT_TRUE(elements.Write("a", half.c_str()));
    EXPECT_TRUE(elements.Write("b", half.c_str()));
    std::string text = "kept";
    EXPECT_FALSE(elements.SaveToText(text));
    EXPECT_EQ(text, "kept");
}

TEST(IniLimits, BoundsSizeAndDepth)
{
    CIniDataObject object;
    const std::string tooLong(CLimits::maxIniBytes + 1, ';');
    EXPECT_FALSE(object.LoadFromMemory(tooLong.data(), tooLong.size()));
    EXPECT_FALSE(object.Write("a", tooLong.c_str()));
    EXPECT_FALSE(object.Write("a", tooLong.data(), static_cast<unsigned>(tooLong.size())));
    int depth = 0;
    const CNest nest(depth);
    EXPECT_FALSE(object.Write("nest", static_cast<const ISerialize&>(nest)));
    EXPECT_GT(depth, 200);
    EXPECT_LE(depth, CLimits::maxIniDepth);
    // A key with slashes goes down as many levels.
    EXPECT_FALSE(WriteObject(object, Repeated("a/", CLimits::maxIniDepth).c_str(),
                             [](IWriteDataStream&) { return true; }));
}

TEST(IniLimits, ReadsNoDeeperThanItWrites)
{
    const std::string path = Repeated("a/", CLimits::maxIniDepth) + "a";
    const std::string text = "[" + path + "]\nx=1\n";
    CIniDataObject object;
    ASSERT_TRUE(object.LoadFromMemory(text.data(), text.size()));
    EXPECT_FALSE(ReadObject(object, path.c_str(), [](const IReadDataStream&) { return true; }));
}

TEST(XmlLimits, ManyNestedMemoryObjectsWithFalseCountsCostLittle)
{
    CXmlDataObject xml("Root");
    constexpr int count = 2000;
    xml.Write("ItemsCount", count);
    for (int i = 0; i < count; ++i)
    {
        xml.Write(IndexedKey("ItemName", i).c_str(), IndexedKey("k", i).c_str());
        WriteObject(xml, IndexedKey("Item", i).c_str(),
                    [](IWriteDataStream& item)
                    {
                        item.Write("type", 0);
                        return WriteObject(item, "value",
                                           [](IWriteDataStream& value)
                                           { return value.Write("ItemsCount", CLimits::maxItems); });
                    });
    }
    CMemDataObject object;
    const double begin = Tests::ThreadSeconds();
    EXPECT_FALSE(object.Deserialize(xml));
    EXPECT_LT(Tests::ThreadSeconds() - begin, 2.0 * secondsAllowed);
}

} // namespace
} // namespace Mirel::Serialization
