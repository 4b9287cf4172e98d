#include "Mirel/Serialization/CXmlDataObject.h"

#include "Support/CTemporaryFolder.h"
#include "Values.h"

#include <gtest/gtest.h>

#include <string>

namespace Mirel::Serialization
{
namespace
{

bool Load(CXmlDataObject& object, const std::string& text)
{
    return object.LoadFromMemory(text.data(), text.size());
}

TEST(CXmlDataObject, BeginsWithADeclarationAndItsRoot)
{
    std::string text;
    EXPECT_TRUE(CXmlDataObject("Preset").SaveToText(text));
    EXPECT_EQ(text, "<?xml version=\"1.0\" encoding=\"utf-8\" ?><Preset />");
}

TEST(CXmlDataObject, TakesWhateverRootTheTextHas)
{
    CXmlDataObject object("Root");
    EXPECT_TRUE(Load(object, "<GlobalSettings><a>1</a></GlobalSettings>"));
    EXPECT_EQ(ReadAs<int>(object, "a"), 1);
}

TEST(CXmlDataObject, ALoadDiscardsTheOldContent)
{
    CXmlDataObject object("Root");
    object.Write("old", 1);
    EXPECT_TRUE(Load(object, "<r/>"));
    EXPECT_FALSE(object.Exists("old"));
}

TEST(CXmlDataObject, ADocumentThatDoesNotParseLeavesNoElement)
{
    for (const char* text :
         {"", "junk", "<a>", "<a></b>", "<a/>junk", "<a/><b/>", "<a k=1/>", "<a k='1' k='2'/>",
          "<a><b></a></b>", "<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>"})
    {
        CXmlDataObject object("Root");
        object.Write("a", 1);
        EXPECT_FALSE(Load(object, text)) << text;
        EXPECT_FALSE(object.Exists("a")) << text;
        EXPECT_FALSE(object.Write("a", 1)) << text;
        std::string saved = "kept";
        EXPECT_FALSE(object.SaveToText(saved)) << text;
        EXPECT_EQ(saved, "kept");
        EXPECT_TRUE(Load(object, "<r/>")) << text;
        EXPECT_TRUE(object.Write("a", 1)) << text;
    }
    CXmlDataObject object("Root");
    EXPECT_FALSE(object.LoadFromMemory(nullptr, 5));
}

TEST(CXmlDataObject, TheLengthMayCountTheTerminatingZero)
{
    const std::string text = "<r><a>1</a></r>";
    CXmlDataObject object("Root");
    EXPECT_TRUE(object.LoadFromMemory(text.c_str(), text.size() + 1));
    EXPECT_EQ(ReadAs<int>(object, "a"), 1);
    const std::string inside("<r>\0</r>", 8);
    EXPECT_FALSE(Load(object, inside));
}

TEST(CXmlDataObject, ReadsCharactersOfUtf8WithOrWithoutADeclaration)
{
    for (const char* text :
         {"<r><a>\xC3\xA9&#xE9;&#233;</a></r>", "<?xml version='1.0'?><r><a>\xC3\xA9&#xE9;&#233;</a></r>",
          "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?><r><a>\xC3\xA9&#xE9;&#233;</a></r>"})
    {
        CXmlDataObject object("Root");
        EXPECT_TRUE(Load(object, text)) << text;
        EXPECT_EQ(ReadText(object, "a"), "\xC3\xA9\xC3\xA9\xC3\xA9") << text;
    }
}

TEST(CXmlDataObject, SavesWhatItLoadedWithTheSameValues)
{
    // Texts that the library would write in another form than it read them.
    CXmlDataObject object("Root");
    ASSERT_TRUE(Load(object, "<r><a>&amp;#x41; &amp;#x</a><b> <![CDATA[ ]]> </b></r>"));
    EXPECT_EQ(ReadText(object, "a"), "&#x41; &#x");
    std::string text;
    ASSERT_TRUE(object.SaveToText(text));
    CXmlDataObject again("Root");
    ASSERT_TRUE(Load(again, text));
    EXPECT_EQ(ReadText(again, "a"), "&#x41; &#x");
    EXPECT_EQ(ReadText(again, "b"), " ");
}

TEST(CXmlDataObject, DoesNotSaveAnAttributeThatWouldChange)
{
    CXmlDataObject object("Root", 2);
    ASSERT_TRUE(Load(object, "<r><s a='&amp;#x41;'/></r>"));
    std::string text;
    EXPECT_FALSE(object.SaveToText(text));
    object.Remove("s");
    EXPECT_TRUE(object.SaveToText(text));
}

TEST(CXmlDataObject, ARootThatIsNoNameCannotBeSaved)
{
    std::string text;
    EXPECT_FALSE(CXmlDataObject("two words").SaveToText(text));
}

TEST(CXmlDataObject, LoadsAndSavesFiles)
{
    const Tests::CTemporaryFolder folder;
    const std::string path = folder.GetPath("a.preset");
    CXmlDataObject object("Preset");
    object.Write("gain", 0.5F);
    object.Write("text", "  two\r\nlines ");
    EXPECT_TRUE(object.SaveToFile(path.c_str()));
    EXPECT_EQ(folder.Read("a.preset").substr(0, 47), "<?xml version=\"1.0\" encoding=\"utf-8\" ?><Preset>");
    CXmlDataObject loaded("Root");
    EXPECT_TRUE(loaded.LoadFromFile(path.c_str()));
    EXPECT_EQ(ReadAs<float>(loaded, "gain"), 0.5F);
    EXPECT_EQ(ReadText(loaded, "text"), "  two\r\nlines ");
}

TEST(CXmlDataObject, UnifiesTheLineEndsOfAFile)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("a.xml", "<r>\r\n<a>1\r\n2\r3\n\r</a></r>\r\n");
    CXmlDataObject object("Root");
    EXPECT_TRUE(object.LoadFromFile(folder.GetPath("a.xml").c_str()));
    EXPECT_EQ(ReadText(object, "a"), "1\n2\n3\n\n");
}

TEST(CXmlDataObject, AFileThatIsNotThereOrDoesNotParseLeavesNoElement)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("bad.xml", "<a>");
    for (const std::string& path :
         {folder.GetPath("none.xml"), folder.GetPath("bad.xml"), folder.GetPath("")})
    {
        CXmlDataObject object("Root");
        EXPECT_FALSE(object.LoadFromFile(path.c_str())) << path;
        EXPECT_FALSE(object.Write("a", 1)) << path;
    }
    CXmlDataObject object("Root");
    EXPECT_FALSE(object.LoadFromFile(nullptr));
}

TEST(CXmlDataObject, AFailedSaveKeepsTheOldFile)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("a.xml", "<old/>");
    CXmlDataObject object("Root");
    object.LoadFromMemory("<", 1);
    EXPECT_FALSE(object.SaveToFile(folder.GetPath("a.xml").c_str()));
    EXPECT_EQ(folder.Read("a.xml"), "<old/>");
}

} // namespace
} // namespace Mirel::Serialization
