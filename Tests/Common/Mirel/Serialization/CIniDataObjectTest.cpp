#include "Mirel/Serialization/CIniDataObject.h"

#include "Support/CTemporaryFolder.h"
#include "Values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Mirel::Serialization
{
namespace
{

std::string Saved(const CIniDataObject& object)
{
    std::string text;
    EXPECT_TRUE(object.SaveToText(text));
    return text;
}

class CLoaded : public CIniDataObject
{
public:
    explicit CLoaded(const std::string& text)
    {
        EXPECT_TRUE(LoadFromMemory(text.data(), text.size())) << text;
    }
};

TEST(CIniDataObject, StoresEntriesAndFlatSections)
{
    CIniDataObject object;
    EXPECT_TRUE(WriteObject(object, "o",
                            [](IWriteDataStream& o) {
                                return o.Write("n", 5) &&
                                       WriteObject(o, "p",
                                                   [](IWriteDataStream& p) { return p.Write("m", 6); });
                            }));
    EXPECT_TRUE(object.Write("b", true));
    EXPECT_TRUE(object.Write("i", -7));
    EXPECT_TRUE(object.Write("f", 0.1F));
    EXPECT_TRUE(object.Write("d", 0.1));
    EXPECT_TRUE(object.Write("s", "a = [b] ; c"));
    EXPECT_TRUE(object.Write("x", "ABC", 3));
    EXPECT_EQ(Saved(object), "b=1\ni=-7\nf=0.10000000149\nd=0.10000000000000000555\ns=a = [b] ; c\nx=QUJD\n"
                             "\n\n[o]\nn=5\n\n\n[o/p]\nm=6\n");
}

TEST(CIniDataObject, ReadsEachKindBack)
{
    const CLoaded object("b=1\ni=-7\nf = 0.10000000149\nd=0.1\ns=text \nx=QUJD\n[O]\nN=5\n[o/p]\nm=6\n");
    EXPECT_EQ(ReadAs<bool>(object, "b"), true);
    EXPECT_EQ(ReadAs<int>(object, "i"), -7);
    EXPECT_EQ(ReadAs<float>(object, "f"), 0.1F);
    EXPECT_EQ(ReadAs<double>(object, "d"), 0.1);
    EXPECT_EQ(ReadText(object, "s"), "text");
    EXPECT_EQ(ReadBytes(object, "x"), (CBytes{false, "ABC"}));
    EXPECT_TRUE(ReadObject(
        object, "o",
        [](const IReadDataStream& o)
        {
            return ReadAs<int>(o, "n") == 5 &&
                   ReadObject(o, "p", [](const IReadDataStream& p) { return ReadAs<int>(p, "m") == 6; });
        }));
}

TEST(CIniDataObject, ComparesKeysWithoutRegardToCase)
{
    CIniDataObject object;
    object.Write("Gain", 1);
    object.Write("GAIN", 2);
    EXPECT_EQ(ReadAs<int>(object, "gain"), 2);
    EXPECT_EQ(Saved(object), "GAIN=2\n");
}

TEST(CIniDataObject, IsLenientWithNumbers)
{
    const CLoaded object("v=abc\nempty=\n");
    int number = 42;
    EXPECT_TRUE(object.Read("v", number));
    EXPECT_TRUE(object.Read("empty", number));
    EXPECT_EQ(number, 42);
    EXPECT_FALSE(object.Read("none", number));
}

TEST(CIniDataObject, ABase64TextOfAnOddLengthIsNull)
{
    const CLoaded object("v=QUJ\n");
    EXPECT_EQ(ReadBytes(object, "v"), (CBytes{true, ""}));
    EXPECT_EQ(ReadBytes(object, "w"), std::nullopt);
}

TEST(CIniDataObject, ExistsMeansAnEntryOrANestedSection)
{
    const CLoaded object("a=1\n[b]\n[b/c]\nx=1\n");
    EXPECT_TRUE(object.Exists("a"));
    EXPECT_TRUE(object.Exists("b"));
    EXPECT_TRUE(object.Exists("b/c"));
    EXPECT_FALSE(object.Exists("c"));
    EXPECT_FALSE(object.Exists(""));
    EXPECT_FALSE(object.Exists(nullptr));
}

TEST(CIniDataObject, ReadsAnObjectWhoseKeyExistsInAnyForm)
{
    const CLoaded object("a=1\n");
    EXPECT_TRUE(ReadObject(object, "a", [](const IReadDataStream& nested) { return !nested.Exists("x"); }));
    EXPECT_FALSE(ReadObject(object, "b", [](const IReadDataStream&) { return true; }));
}

TEST(CIniDataObject, RemovesTheEntryElseTheNestedSection)
{
    CLoaded object("a=1\n[a]\nx=2\n[a/b]\ny=3\n[ab]\nz=4\n");
    object.Remove("a");
    EXPECT_EQ(ReadAs<int>(object, "a"), std::nullopt);
    EXPECT_TRUE(object.Exists("a"));
    object.Remove("A");
    EXPECT_FALSE(object.Exists("a"));
    EXPECT_FALSE(object.Exists("a/b"));
    EXPECT_TRUE(object.Exists("ab"));
    object.Remove("a");
    object.Remove(nullptr);
    object.Remove("");
}

TEST(CIniDataObject, AnObjectReplacesTheEntryAndTheOldObjectOfItsKey)
{
    CIniDataObject object;
    object.Write("a", 1);
    WriteObject(object, "a",
                [](IWriteDataStream& a) {
                    return WriteObject(a, "deep", [](IWriteDataStream& deep) { return deep.Write("x", 1); });
                });
    EXPECT_EQ(ReadAs<int>(object, "a"), std::nullopt);
    WriteObject(object, "a", [](IWriteDataStream& a) { return a.Write("y", 2); });
    EXPECT_FALSE(object.Exists("a/deep"));
    EXPECT_EQ(Saved(object).find("deep"), std::string::npos);
    EXPECT_TRUE(ReadObject(object, "a", [](const IReadDataStream& a) { return ReadAs<int>(a, "y") == 2; }));
    object.Write("a", 3);
    EXPECT_EQ(Saved(object), "a=3\n");
}

TEST(CIniDataObject, AnEmptyObjectExists)
{
    CIniDataObject object;
    EXPECT_TRUE(WriteObject(object, "a", [](IWriteDataStream&) { return true; }));
    const CLoaded loaded(Saved(object));
    EXPECT_TRUE(ReadObject(loaded, "a", [](const IReadDataStream&) { return true; }));
    EXPECT_FALSE(WriteObject(object, "b", [](IWriteDataStream&) { return false; }));
}

TEST(CIniDataObject, ASlashInAKeyDeepensThePath)
{
    CIniDataObject object;
    WriteObject(object, "a/b", [](IWriteDataStream& nested) { return nested.Write("x", 1); });
    EXPECT_EQ(Saved(object), "[a/b]\nx=1\n");
    WriteObject(object, "a", [](IWriteDataStream&) { return true; });
    EXPECT_TRUE(
        ReadObject(object, "a",
                   [](const IReadDataStream& a)
                   { return ReadObject(a, "b", [](const IReadDataStream& b) { return b.Exists("x"); }); }));
}

TEST(CIniDataObject, ClearTakesASectionWithAllThatIsNested)
{
    CLoaded object("r=0\n[a]\nx=1\n[A/b]\ny=2\n[ab]\nz=3\n");
    WriteObject(object, "c", [](IWriteDataStream& c) { return c.Write("x", 1); });
    ReadObject(object, "a", [](const IReadDataStream& a) { return a.Exists("x"); });
    EXPECT_FALSE(WriteObject(object, "a",
                             [](IWriteDataStream& a)
                             {
                                 a.Write("x", 1);
                                 a.Clear();
                                 return a.Write("", 1);
                             }));
    EXPECT_FALSE(object.Exists("a"));
    EXPECT_FALSE(object.Exists("a/b"));
    EXPECT_TRUE(object.Exists("ab"));
    object.Clear();
    EXPECT_EQ(Saved(object), "");
}

TEST(CIniDataObject, RefusesAKeyThatWouldNotBeFoundAgain)
{
    for (const char* key :
         {"", " a", "a ", "\ta", "a\n", "a\nb", "a\rb", "a=b", ";a", "#a", "[a", "\xEF\xBB\xBF_a"})
    {
        CIniDataObject object;
        EXPECT_FALSE(object.Write(key, 1)) << key;
        EXPECT_EQ(Saved(object), "") << key;
    }
    for (const char* key : {"", " a", "a ", "a\nb", "a]b", "a]"})
    {
        CIniDataObject object;
        EXPECT_FALSE(WriteObject(object, key, [](IWriteDataStream&) { return true; })) << key;
        EXPECT_EQ(Saved(object), "") << key;
    }
    CIniDataObject object;
    EXPECT_FALSE(object.Write(nullptr, 1));
    EXPECT_FALSE(WriteObject(object, nullptr, [](IWriteDataStream&) { return true; }));
    EXPECT_EQ(ReadAs<int>(object, nullptr), std::nullopt);
}

TEST(CIniDataObject, KeepsOddKeysThatCanBeFoundAgain)
{
    for (const char* key : {"a b", "a;b", "a[b]", "]", "<<<", "\"a\"", "\xE2\x82\xAC", "a/b", "a'"})
    {
        CIniDataObject object;
        EXPECT_TRUE(object.Write(key, 5)) << key;
        const CLoaded loaded(Saved(object));
        EXPECT_EQ(ReadAs<int>(loaded, key), 5) << key;
    }
    for (const char* key : {"a b", "[a", "a=b", ";a", "\xE2\x82\xAC"})
    {
        CIniDataObject object;
        EXPECT_TRUE(WriteObject(object, key, [](IWriteDataStream& nested) { return nested.Write("x", 5); }))
            << key;
        const CLoaded loaded(Saved(object));
        EXPECT_TRUE(ReadObject(loaded, key,
                               [](const IReadDataStream& nested) { return ReadAs<int>(nested, "x") == 5; }))
            << key;
    }
}

TEST(CIniDataObject, EveryTextSurvivesOrIsRefused)
{
    struct
    {
        const char* name;
        std::string text;
        bool keeps;
    } const cases[] = {
        {"empty", "", true},
        {"outer and double blanks", "  a  b  ", true},
        {"only blanks", "   ", true},
        {"tabs", "\ta\t", true},
        {"line feeds", "a\nb\n\nc", true},
        {"only line feeds", "\n\n", true},
        {"ends in a line feed", "a\n", true},
        {"carriage return", "a\rb", false},
        {"both", "a\r\nb", false},
        {"control bytes", "\x01\x02\x7F", true},
        {"comment marks", "; # x", true},
        {"section marks", "[a]", true},
        {"quotes", "\"a\"", true},
        {"non-ASCII", "\xC3\xA9\xE2\x82\xAC", true},
        {"no UTF-8", "\xE2\x82 \xFF", true},
        {"byte order mark", "\xEF\xBB\xBF", true},
        {"block mark", "<<<x", false},
        {"block mark after a blank", " <<<x", true},
        {"block mark among lines", "a\n<<<x\nb", true},
        {"block end alone", "END_OF_TEXT", true},
        {"block end in lines", "a\nEND_OF_TEXT\nb", false},
        {"block end in another case and with blanks", "a\nend_of_Text \t", false},
        {"block end after a blank", "a\n END_OF_TEXT", true},
        {"block end with more", "a\nEND_OF_TEXTS", true},
        {"block end with an outer blank", "END_OF_TEXT ", false},
    };
    for (const auto& c : cases)
    {
        CIniDataObject object;
        object.Write("first", 1);
        object.Write("v", "old");
        EXPECT_EQ(object.Write("v", c.text.c_str()), c.keeps) << c.name;
        object.Write("last", 2);
        const CLoaded loaded(Saved(object));
        const std::optional<std::string> expected = c.keeps ? std::optional(c.text) : std::nullopt;
        EXPECT_EQ(ReadText(object, "v"), expected) << c.name;
        EXPECT_EQ(ReadText(loaded, "v"), expected) << c.name;
        EXPECT_EQ(ReadAs<int>(loaded, "first"), 1) << c.name;
        EXPECT_EQ(ReadAs<int>(loaded, "last"), 2) << c.name;
    }
}

TEST(CIniDataObject, ANullTextIsStoredAsTheEmptyText)
{
    CIniDataObject object;
    EXPECT_TRUE(object.Write("v", static_cast<const char*>(nullptr)));
    EXPECT_EQ(ReadText(object, "v"), "");
}

TEST(CIniDataObject, DoesNotSaveWhatWouldLoadAsSomethingElse)
{
    // A block whose only line looks like the start of another.
    CLoaded object("v=<<<A\n<<<B\nA\n");
    EXPECT_EQ(ReadText(object, "v"), "<<<B");
    std::string text = "kept";
    EXPECT_FALSE(object.SaveToText(text));
    EXPECT_EQ(text, "kept");
    object.Write("v", "x");
    EXPECT_TRUE(object.SaveToText(text));
}

TEST(CIniDataObject, PassesOverWhatIsNoEntry)
{
    const CLoaded object("; comment\nnovalue\n=x\na=1\n[open");
    EXPECT_EQ(ReadAs<int>(object, "a"), 1);
    EXPECT_FALSE(object.Exists("novalue"));
}

TEST(CIniDataObject, ASectionThatDoesNotCloseLosesNoEntriesSilently)
{
    // The library would put them into a section with the name "open\na".
    for (const std::string& text :
         std::vector<std::string>{"b=2\n[open\na=1\n", "[open\r\na=1\r\n", "[open\n; comment\n\na=1\n"})
    {
        CIniDataObject object;
        EXPECT_FALSE(object.LoadFromMemory(text.data(), text.size())) << text;
        EXPECT_EQ(Saved(object), "") << text;
    }
}

TEST(CIniDataObject, LoadsAndSavesFilesWithoutAByteOrderMark)
{
    const Tests::CTemporaryFolder folder;
    CIniDataObject object;
    object.Write("text", "\xC3\xA9");
    EXPECT_TRUE(object.SaveToFile(folder.GetPath("a.ini").c_str()));
    EXPECT_EQ(folder.Read("a.ini"), "text=\xC3\xA9\n");
    folder.Write("b.ini", "\xEF\xBB\xBFtext=x\r\n[s]\r\ny=1\r\n");
    CIniDataObject loaded;
    loaded.Write("old", 1);
    EXPECT_TRUE(loaded.LoadFromFile(folder.GetPath("b.ini").c_str()));
    EXPECT_EQ(ReadText(loaded, "text"), "x");
    EXPECT_FALSE(loaded.Exists("old"));
}

TEST(CIniDataObject, AFileThatIsNotThereIsAFailure)
{
    const Tests::CTemporaryFolder folder;
    CIniDataObject object;
    object.Write("old", 1);
    EXPECT_FALSE(object.LoadFromFile(folder.GetPath("none.ini").c_str()));
    EXPECT_FALSE(object.Exists("old"));
    EXPECT_FALSE(object.LoadFromFile(nullptr));
    EXPECT_FALSE(object.LoadFromMemory(nullptr, 0));
    const std::string zero("a=1\0b", 5);
    EXPECT_FALSE(object.LoadFromMemory(zero.data(), zero.size()));
    EXPECT_TRUE(object.LoadFromMemory("", 0));
    EXPECT_TRUE(object.Write("a", 1));
}

TEST(CIniDataObject, AFailedSaveKeepsTheOldFile)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("a.ini", "old=1\n");
    const CLoaded object("v=<<<A\n<<<B\nA\n");
    EXPECT_FALSE(object.SaveToFile(folder.GetPath("a.ini").c_str()));
    EXPECT_EQ(folder.Read("a.ini"), "old=1\n");
}

} // namespace
} // namespace Mirel::Serialization
