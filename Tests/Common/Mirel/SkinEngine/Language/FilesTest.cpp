#include "Mirel/SkinEngine/Language/CSkinPaths.h"
#include "Mirel/SkinEngine/Limits.h"
#include "ParserRig.h"

#include <filesystem>
#include <memory>

namespace
{

using namespace Tests;
using namespace Mirel::SkinEngine;

std::string Take(char* text)
{
    const std::unique_ptr<char[]> owned(text);
    return text == nullptr ? "(null)" : text;
}

TEST(NormalizePath, TurnsBackslashesAndCollapsesSlashes)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", ""},           {"a\\b", "a/b"},      {"a//b///c", "a/b/c"}, {"\\\\a", "/a"},
        {"a/./b", "a/./b"}, {"a/../b", "a/../b"}, {"a/\\/b/", "a/b/"},
    };
    for (const auto& [path, normalized] : cases)
    {
        EXPECT_EQ(NormalizePath(path), normalized) << path;
    }
}

TEST(ParseFile, NormalizesThePath)
{
    CParserRig rig;
    rig.folder.Write("skin.xml", "<S><A/></S>");
    std::string current;
    rig.OnStart("A",
                [&](const CNamedAttributes&)
                {
                    current = rig.parser.GetPublicState().GetCurrentFile();
                    return true;
                });
    EXPECT_TRUE(rig.parser.ParseFile((rig.folder.GetPath("") + "/\\skin.xml").c_str()));
    EXPECT_EQ(current, rig.folder.GetPath("skin.xml"));
}

TEST(ParseFile, MissingFileFails)
{
    CParserRig rig;
    EXPECT_FALSE(rig.ParseExisting("none.xml"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 " + rig.folder.GetPath("none.xml") + ": file does not exist"});
    EXPECT_FALSE(rig.parser.ParseFile(nullptr));
}

TEST(ParseFile, FolderIsNoFile)
{
    CParserRig rig;
    std::filesystem::create_directory(rig.folder.GetPath("skin.xml"));
    EXPECT_FALSE(rig.ParseExisting("skin.xml"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Fatal error line 0: the file cannot be read (skin.xml)"});
}

TEST(Include, ReadsTheFileInItsPlace)
{
    CParserRig rig;
    rig.folder.Write("part.xml", "<P><A x='$v$'/><VARIABLE id='w' value='2'/></P>");
    EXPECT_TRUE(rig.Parse("<S><VARIABLE id='v' value='1'/><INCLUDE file='part.xml'/><B x='$w$'/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><P><A x='1'></A></P><B x='2'></B></S>");
    EXPECT_EQ(rig.GetMessages(), Messages());
}

TEST(Include, PathsStartAtTheMainFilesFolder)
{
    CParserRig rig;
    std::filesystem::create_directory(rig.folder.GetPath("sub"));
    rig.folder.Write("sub/one.xml", "<P><INCLUDE file='sub\\two.xml'/></P>");
    rig.folder.Write("sub/two.xml", "<Q/>");
    EXPECT_TRUE(rig.Parse("<S><INCLUDE file='sub/one.xml'/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><P><Q></Q></P></S>");
}

TEST(Include, OfAMissingFileFails)
{
    CParserRig rig;
    EXPECT_FALSE(rig.Parse("<S><INCLUDE file='none.xml'/><A/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 " + rig.folder.GetPath("none.xml") + ": file does not exist"});
    EXPECT_EQ(rig.trace.text, "<S><A></A></S>");
}

TEST(Include, WithoutAFileTriesTheEmptyPath)
{
    for (const char* element : {"<INCLUDE/>", "<INCLUDE_ONCE/>", "<INCLUDE file=''/>"})
    {
        CParserRig rig;
        EXPECT_FALSE(rig.Parse(std::string("<S>") + element + "</S>"));
        EXPECT_EQ(rig.GetMessages(), Messages{"0 : file does not exist"});
    }
}

TEST(Include, OnceIsOnceForEachPath)
{
    CParserRig rig;
    rig.folder.Write("part.xml", "<P/>");
    EXPECT_TRUE(rig.Parse("<S><INCLUDE_ONCE file='part.xml'/><INCLUDE_ONCE file='/part.xml'/>"
                          "<INCLUDE file='part.xml'/><INCLUDE_ONCE file='./part.xml'/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><P></P><P></P><P></P></S>");
    EXPECT_TRUE(rig.Parse("<S><INCLUDE_ONCE file='part.xml'/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><P></P></S>");
}

TEST(Include, OnceMayIncludeItself)
{
    CParserRig rig;
    rig.folder.Write("part.xml", "<P><INCLUDE_ONCE file='part.xml'/></P>");
    EXPECT_TRUE(rig.Parse("<S><INCLUDE_ONCE file='part.xml'/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><P></P></S>");
}

TEST(Include, MayStandInTemplatesAndRepeats)
{
    CParserRig rig;
    rig.folder.Write("part0.xml", "<P><TEMPLATE id='T'><A/></TEMPLATE></P>");
    rig.folder.Write("part1.xml", "<Q><T/></Q>");
    EXPECT_TRUE(rig.Parse("<S><REPEAT count='2'><INCLUDE file='part$index$.xml'/></REPEAT></S>"));
    EXPECT_EQ(rig.trace.text, "<S><P></P><Q><A></A></Q></S>");
}

/// A skin folder with a neighbour "other" beside it and a data folder.
class PathsOfSkins : public ::testing::Test
{
protected:
    PathsOfSkins()
    {
        for (const char* name : {"skin", "skin/sub", "skin-two", "other", "data"})
        {
            std::filesystem::create_directory(rig.folder.GetPath(name));
            rig.folder.Write(std::string(name) + "/part.xml", "<P/>");
        }
        std::filesystem::create_symlink(rig.folder.GetPath("other"), rig.folder.GetPath("skin/link"));
        std::filesystem::create_symlink(rig.folder.GetPath("other/part.xml"),
                                        rig.folder.GetPath("skin/link.xml"));
        std::filesystem::create_symlink(rig.folder.GetPath("skin/sub/part.xml"),
                                        rig.folder.GetPath("skin/inner.xml"));
    }

    /// Whether the path was taken; if it was not, that the one message says so.
    bool Takes(const std::string& path)
    {
        const bool taken = rig.Parse("<S><INCLUDE file='" + path + "'/></S>", "skin/skin.xml");
        if (!taken)
        {
            EXPECT_EQ(rig.GetMessages().size(), 1U);
            const bool says = rig.GetMessages()[0].ends_with(": file is outside of the skin's folder") ||
                              rig.GetMessages()[0].ends_with(": file does not exist");
            EXPECT_TRUE(says) << rig.GetMessages()[0];
            EXPECT_EQ(rig.trace.text, "<S></S>");
        }
        return taken;
    }

    CParserRig rig;
};

TEST_F(PathsOfSkins, LeadNowhereOutOfTheFolder)
{
    EXPECT_TRUE(Takes("part.xml"));
    EXPECT_TRUE(Takes("sub/../part.xml"));
    EXPECT_TRUE(Takes("../skin/part.xml"));
    EXPECT_TRUE(Takes("inner.xml"));
    EXPECT_TRUE(Takes(rig.folder.GetPath("skin/part.xml")));
    EXPECT_FALSE(Takes("../other/part.xml"));
    EXPECT_FALSE(Takes("..\\other\\part.xml"));
    EXPECT_FALSE(Takes("../skin-two/part.xml"));
    EXPECT_FALSE(Takes("sub/../../other/part.xml"));
    EXPECT_FALSE(Takes("link/part.xml"));
    EXPECT_FALSE(Takes("link.xml"));
    EXPECT_FALSE(Takes("link/../data/part.xml"));
    EXPECT_FALSE(Takes(rig.folder.GetPath("other/part.xml")));
    EXPECT_FALSE(Takes("/etc/passwd"));
    EXPECT_FALSE(Takes("../../../../../../../../etc/passwd"));
    EXPECT_FALSE(Takes("../data/part.xml"));
}

TEST_F(PathsOfSkins, MayLeadIntoTheDataFolder)
{
    rig.parser.SetDataFolder(rig.folder.GetPath("data").c_str());
    EXPECT_EQ(rig.parser.GetDataFolder(), rig.folder.GetPath("data"));
    EXPECT_TRUE(Takes("../data/part.xml"));
    EXPECT_TRUE(Takes(rig.folder.GetPath("data/part.xml")));
    EXPECT_FALSE(Takes("../other/part.xml"));
    rig.parser.SetDataFolder(nullptr);
    EXPECT_FALSE(Takes("../data/part.xml"));
}

TEST_F(PathsOfSkins, RefusedOneIsNamed)
{
    EXPECT_FALSE(Takes("../other/part.xml"));
    EXPECT_EQ(rig.GetMessages()[0],
              "0 " + rig.folder.GetPath("skin/../other/part.xml") + ": file is outside of the skin's folder");
}

TEST_F(PathsOfSkins, FileAttributesKeepToThemToo)
{
    std::string path;
    rig.OnStart("A",
                [&](const CNamedAttributes& attributes)
                {
                    path = Take(rig.parser.GetFileAttribute(attributes, {"image"}));
                    return true;
                });
    EXPECT_TRUE(rig.Parse("<S><A image='../other/a.png'/></S>", "skin/skin.xml"));
    EXPECT_EQ(path, "(null)");
    EXPECT_EQ(rig.GetMessages(), Messages{"0 " + rig.folder.GetPath("skin/../other/a.png") +
                                          ": file is outside of the skin's folder"});
    EXPECT_TRUE(rig.Parse("<S><A image='link/a.png'/></S>", "skin/skin.xml"));
    EXPECT_EQ(path, "(null)");
    EXPECT_TRUE(rig.Parse("<S><A image='not/yet/a.png'/></S>", "skin/skin.xml"));
    EXPECT_EQ(path, rig.folder.GetPath("skin/not/yet/a.png"));
}

/// Looks a file attribute up while a skin is parsed whose folder holds the files named.
class FileAttributes : public ::testing::Test
{
protected:
    using Lookup = std::function<char*(CSkinParser&, const CNamedAttributes&)>;

    std::string Find(const TextMap& attributes, const Lookup& lookup)
    {
        std::string path;
        rig.OnStart("A",
                    [&](const CNamedAttributes&)
                    {
                        path = Take(lookup(rig.parser, Attributes(attributes)));
                        return true;
                    });
        EXPECT_TRUE(rig.Parse("<S><A/></S>"));
        const std::string root = rig.folder.GetPath("");
        return path.starts_with(root) ? path.substr(root.size()) : path;
    }

    std::string Find(const TextMap& attributes, const std::vector<std::string>& pieces)
    {
        return Find(attributes, [&](CSkinParser& parser, const CNamedAttributes& given)
                    { return parser.GetFileAttribute(given, pieces); });
    }

    std::string Find(const TextMap& attributes, const std::vector<std::string>& base,
                     const std::vector<std::string>& suffix)
    {
        return Find(attributes, [&](CSkinParser& parser, const CNamedAttributes& given)
                    { return parser.GetFileAttribute(given, base, suffix); });
    }

    std::string FindSimple(const TextMap& attributes, const char* base, const char* suffix)
    {
        return Find(attributes, [&](CSkinParser& parser, const CNamedAttributes& given)
                    { return parser.GetSimpleFileAttribute(given, base, suffix); });
    }

    CParserRig rig;
};

TEST_F(FileAttributes, WholeNameWinsWithoutALookAtTheFile)
{
    EXPECT_EQ(Find({{"image_hover", "sub\\\\none.png"}, {"image", "a.png"}}, {"image", "_hover"}),
              "sub/none.png");
}

TEST_F(FileAttributes, ShorterNamesTakeTheRestIntoThePath)
{
    rig.folder.Write("a_hover_on.png", "");
    EXPECT_EQ(Find({{"image", "a.png"}}, {"image", "_hover", "_on"}), "a_hover_on.png");
    rig.folder.Write("b_on.png", "");
    EXPECT_EQ(Find({{"image", "a.png"}, {"image_hover", "b.png"}}, {"image", "_hover", "_on"}), "b_on.png");
}

TEST_F(FileAttributes, ShorterNameMustLeadToAFile)
{
    EXPECT_EQ(Find({{"image", "a.png"}}, {"image", "_hover"}), "(null)");
    rig.folder.Write("a_hover_on.png", "");
    EXPECT_EQ(Find({{"image", "a.png"}, {"image_hover", "b.png"}}, {"image", "_hover", "_on"}),
              "a_hover_on.png");
}

TEST_F(FileAttributes, NothingGivesNull)
{
    EXPECT_EQ(Find({}, {"image"}), "(null)");
    EXPECT_EQ(Find({{"image", "a.png"}}, std::vector<std::string>{}), "(null)");
}

TEST_F(FileAttributes, PathWithoutExtensionTakesTheRestAtItsEnd)
{
    std::filesystem::create_directory(rig.folder.GetPath("v1.0"));
    rig.folder.Write("v1.0/a_hover", "");
    EXPECT_EQ(Find({{"image", "v1.0/a"}}, {"image", "_hover"}), "v1.0/a_hover");
}

TEST_F(FileAttributes, TwoListsAreShortenedIndependently)
{
    rig.folder.Write("m.png", "");
    // The whole name, with no look at the file.
    EXPECT_EQ(Find({{"image_hover_mask", "none.png"}}, {"image", "_hover"}, {"_mask"}), "none.png");
    // The base without its last piece.
    EXPECT_EQ(Find({{"image_mask", "m.png"}}, {"image", "_hover"}, {"_mask"}), "m.png");
    // The rest of the name in the path.
    rig.folder.Write("a_hover_mask.png", "");
    EXPECT_EQ(Find({{"image", "a.png"}, {"image_mask", "m.png"}}, {"image", "_hover"}, {"_mask"}),
              "a_hover_mask.png");
    // An image is no mask.
    rig.folder.Write("b.png", "");
    EXPECT_EQ(Find({{"image", "b.png"}}, {"image", "_hover"}, {"_mask"}), "(null)");
    EXPECT_EQ(Find({{"image_mask", "m.png"}}, {"image", "_hover"}, {"_mask", "_big"}), "m.png");
}

TEST_F(FileAttributes, SimpleFormLooksAtNoFile)
{
    EXPECT_EQ(FindSimple({{"image_big", "b.png"}, {"image", "a.png"}}, "image", "_big"), "b.png");
    EXPECT_EQ(FindSimple({{"image", "a.b.png"}}, "image", "_big"), "a.b_big.png");
    EXPECT_EQ(FindSimple({{"image", "a"}}, "image", "_big"), "a_big");
    EXPECT_EQ(FindSimple({}, "image", "_big"), "(null)");
}

TEST_F(FileAttributes, WhatWasFoundOnceIsKept)
{
    EXPECT_EQ(Find({{"image", "a.png"}}, {"image", "_hover"}), "(null)");
    rig.folder.Write("a_hover.png", "");
    EXPECT_EQ(Find({{"image", "a.png"}}, {"image", "_hover"}), "(null)");
}

} // namespace
