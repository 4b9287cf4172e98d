// Any tree of typed values comes back from every form that holds it.

#include "Mirel/Serialization/CIniDataObject.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Values.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cmath>
#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace Mirel::Serialization
{
namespace
{

struct CBinary
{
    std::string bytes;
    bool operator==(const CBinary&) const = default;
};

class CTree;
using Subtree = std::shared_ptr<CTree>;
using Value = std::variant<bool, int, float, double, std::string, CBinary, Subtree>;

/// A model of a data object: typed values by key, which writes itself and checks itself against a stream.
class CTree : public ISerialize
{
public:
    std::map<std::string, Value> values;

    /// Leaves out what the stream refuses, so that only what it took is looked for later.
    bool Serialize(IWriteDataStream& stream) const override
    {
        for (const auto& [name, value] : values)
        {
            const std::string& key = name; // a binding cannot be captured
            const bool written =
                std::visit([&](const auto& v) { return WriteValue(stream, key.c_str(), v); }, value);
            if (written)
            {
                accepted.push_back(key);
            }
        }
        return true;
    }

    /// Checks every accepted value, and that nothing else is there.
    void Check(const IReadDataStream& stream) const
    {
        for (const auto& [name, value] : values)
        {
            const std::string& key = name; // a binding cannot be captured
            const bool taken = std::find(accepted.begin(), accepted.end(), key) != accepted.end();
            RC_ASSERT(stream.Exists(key.c_str()) == taken);
            if (taken)
            {
                std::visit([&](const auto& v) { CheckValue(stream, key.c_str(), v); }, value);
            }
        }
    }

    std::size_t CountAccepted() const { return accepted.size(); }

private:
    template <class T>
    static bool WriteValue(IWriteDataStream& stream, const char* key, const T& value)
    {
        return stream.Write(key, value);
    }
    static bool WriteValue(IWriteDataStream& stream, const char* key, const std::string& value)
    {
        return stream.Write(key, value.c_str());
    }
    static bool WriteValue(IWriteDataStream& stream, const char* key, const CBinary& value)
    {
        return stream.Write(key, value.bytes.data(), static_cast<unsigned>(value.bytes.size()));
    }
    static bool WriteValue(IWriteDataStream& stream, const char* key, const Subtree& value)
    {
        return stream.Write(key, static_cast<const ISerialize&>(*value));
    }

    template <class T>
    static void CheckValue(const IReadDataStream& stream, const char* key, const T& value)
    {
        RC_ASSERT(ReadAs<T>(stream, key) == value);
    }
    static void CheckValue(const IReadDataStream& stream, const char* key, const std::string& value)
    {
        RC_ASSERT(ReadText(stream, key) == value);
    }
    static void CheckValue(const IReadDataStream& stream, const char* key, const CBinary& value)
    {
        const auto read = ReadBytes(stream, key);
        RC_ASSERT(read.has_value());
        RC_ASSERT(read->bytes == value.bytes);
    }
    static void CheckValue(const IReadDataStream& stream, const char* key, const Subtree& value)
    {
        RC_ASSERT(ReadObject(stream, key,
                             [&](const IReadDataStream& nested)
                             {
                                 value->Check(nested);
                                 return true;
                             }));
    }

    mutable std::vector<std::string> accepted;
};

/// Texts that press on what the libraries escape, condense or mistake.
rc::Gen<std::string> AnyText()
{
    const auto piece = rc::gen::element<std::string>(
        " ", "  ", "\n", "\r", "\t", "&", "&#x", "&#x41;", "&amp;", "<", "]]>", "'", "\"", "=", "[", "]", ";",
        "#", "<<<", "END_OF_TEXT", "a", "Z", "0", "\x01", "\x7F", "\xC3\xA9", "\xE2\x82\xAC", "\xEF\xBB\xBF",
        "\xF0\x9F\x8E\xB5", "\xFF");
    return rc::gen::map(rc::gen::container<std::vector<std::string>>(piece),
                        [](const std::vector<std::string>& pieces)
                        {
                            std::string text;
                            for (const auto& part : pieces)
                            {
                                text += part;
                            }
                            return text;
                        });
}

/// Names that every form takes; in lower case, since INI files do not tell cases apart.
rc::Gen<std::string> PlainKey()
{
    return rc::gen::map(rc::gen::inRange(0, 400), [](int i) { return "key_" + std::to_string(i); });
}

float FiniteFloat(std::uint32_t bits)
{
    const auto value = std::bit_cast<float>(bits);
    return std::isfinite(value) ? value : 0.25F;
}

double FiniteDouble(std::uint64_t bits)
{
    const auto value = std::bit_cast<double>(bits);
    return std::isfinite(value) ? value : 0.25;
}

Subtree AnyTree(const rc::Gen<std::string>& keys, int depth)
{
    auto tree = std::make_shared<CTree>();
    const int count = *rc::gen::inRange(0, depth == 0 ? 30 : 6);
    constexpr int maxDepth = 3;
    for (int i = 0; i < count; ++i)
    {
        const std::string key = *keys;
        switch (*rc::gen::inRange(0, depth < maxDepth ? 7 : 6))
        {
        case 0:
            tree->values[key] = *rc::gen::arbitrary<bool>();
            break;
        case 1:
            tree->values[key] = *rc::gen::arbitrary<int>();
            break;
        case 2:
            tree->values[key] = FiniteFloat(*rc::gen::arbitrary<std::uint32_t>());
            break;
        case 3:
            tree->values[key] = FiniteDouble(*rc::gen::arbitrary<std::uint64_t>());
            break;
        case 4:
            tree->values[key] = *AnyText();
            break;
        case 5:
            tree->values[key] = CBinary{*rc::gen::container<std::string>(rc::gen::arbitrary<char>())};
            break;
        default:
            tree->values[key] = AnyTree(keys, depth + 1);
        }
    }
    return tree;
}

void CheckXml(const CTree& tree, int mode)
{
    CXmlDataObject object("Root", mode);
    RC_ASSERT(tree.Serialize(object));
    tree.Check(object);
    std::string text;
    RC_ASSERT(object.SaveToText(text));
    CXmlDataObject loaded("Root", mode);
    RC_ASSERT(loaded.LoadFromMemory(text.data(), text.size()));
    tree.Check(loaded);
}

void CheckIni(const CTree& tree)
{
    CIniDataObject object;
    RC_ASSERT(tree.Serialize(object));
    tree.Check(object);
    std::string text;
    RC_ASSERT(object.SaveToText(text));
    CIniDataObject loaded;
    RC_ASSERT(loaded.LoadFromMemory(text.data(), text.size()));
    tree.Check(loaded);
}

RC_GTEST_PROP(RoundTrip, MemoryGivesAnyTreeBack, ())
{
    const Subtree tree = AnyTree(AnyText(), 0);
    CMemDataObject object;
    RC_ASSERT(tree->Serialize(object));
    RC_ASSERT(tree->CountAccepted() == tree->values.size());
    tree->Check(object);
}

RC_GTEST_PROP(RoundTrip, XmlWithElementsGivesBackAllThatItTook, ())
{
    CheckXml(*AnyTree(PlainKey(), 0), 0);
}

RC_GTEST_PROP(RoundTrip, XmlWithNamedElementsGivesBackAllThatItTook, ())
{
    CheckXml(*AnyTree(AnyText(), 0), 1);
}

RC_GTEST_PROP(RoundTrip, XmlWithAttributesGivesBackAllThatItTook, ())
{
    CheckXml(*AnyTree(PlainKey(), 0), 2);
}

RC_GTEST_PROP(RoundTrip, XmlRefusesOddKeysOrGivesThemBack, (bool attributes))
{
    CheckXml(*AnyTree(AnyText(), 0), attributes ? 2 : 0);
}

RC_GTEST_PROP(RoundTrip, IniGivesBackAllThatItTook, ())
{
    CheckIni(*AnyTree(PlainKey(), 0));
}

/// Keys that differ in more than their case, one a tree, so that none replaces another.
RC_GTEST_PROP(RoundTrip, IniRefusesOddKeysOrGivesThemBack, ())
{
    CTree tree;
    tree.values[*AnyText()] = *AnyText();
    CheckIni(tree);
}

/// A memory object that goes through a text form comes back with the same kinds and bytes.
RC_GTEST_PROP(RoundTrip, MemoryThroughXmlIsTheIdentity, ())
{
    const Subtree tree = AnyTree(PlainKey(), 0);
    CMemDataObject object;
    RC_ASSERT(tree->Serialize(object));
    const int mode = *rc::gen::inRange(0, 3);
    CXmlDataObject xml("Root", mode);
    RC_ASSERT(object.Serialize(xml));
    std::string text;
    RC_ASSERT(xml.SaveToText(text));
    CXmlDataObject loaded("Root", mode);
    RC_ASSERT(loaded.LoadFromMemory(text.data(), text.size()));
    CMemDataObject copy;
    RC_ASSERT(copy.Deserialize(loaded));
    RC_ASSERT(copy.GetCount() == object.GetCount());
    tree->Check(copy);
}

RC_GTEST_PROP(RoundTrip, MemoryThroughIniIsTheIdentity, ())
{
    const Subtree tree = AnyTree(PlainKey(), 0);
    CMemDataObject object;
    RC_ASSERT(tree->Serialize(object));
    CIniDataObject ini;
    RC_ASSERT(object.Serialize(ini));
    std::string text;
    RC_ASSERT(ini.SaveToText(text));
    CIniDataObject loaded;
    RC_ASSERT(loaded.LoadFromMemory(text.data(), text.size()));
    CMemDataObject copy;
    RC_ASSERT(copy.Deserialize(loaded));
    RC_ASSERT(copy.GetCount() == object.GetCount());
    tree->Check(copy);
}

} // namespace
} // namespace Mirel::Serialization
