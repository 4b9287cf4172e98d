#include "SkinCheck/SkinCheckProgram.h"

#include "SkinCheck/JsonText.h"
#include "Support/CTemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace SkinCheck
{
namespace
{

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class SkinCheckProgram : public testing::Test
{
protected:
    /// Checks a file of that content with those options.
    int Check(const std::string& content, const std::vector<std::string>& options = {}, bool colours = false)
    {
        folder.Write("a.model", content);
        std::vector<std::string> arguments = {folder.GetPath("a.model")};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return Run(arguments, colours);
    }

    int Run(const std::vector<std::string>& arguments, bool colours = false)
    {
        std::vector<const char*> argv = {"skin-check"};
        for (const std::string& argument : arguments)
        {
            argv.push_back(argument.c_str());
        }
        std::ostringstream outStream;
        std::ostringstream errorStream;
        const int code =
            RunProgram(static_cast<int>(argv.size()), argv.data(), outStream, errorStream, colours);
        out = outStream.str();
        errors = errorStream.str();
        return code;
    }

    Tests::CTemporaryFolder folder;
    std::string out;
    std::string errors;
};

TEST_F(SkinCheckProgram, ThePluginsObjectsAreThereIfTheyAreAskedFor)
{
    const char* linked = "<MODEL><PARAM id='a'/><PARAM_LINK from='dsp.input5' to='a'/></MODEL>";
    EXPECT_EQ(Check(linked), 2);
    EXPECT_EQ(Check(linked, {"--plugin"}), 0);
    EXPECT_THAT(out, IsEmpty());
}

TEST_F(SkinCheckProgram, ThePluginsVariablesAreThereIfTheyAreAskedFor)
{
    const char* repeated =
        "<MODEL><REPEAT count='$PLUGIN_INPUT_PARAMS_COUNT$'><PARAM id='p$index$'/></REPEAT></MODEL>";
    EXPECT_EQ(Check(repeated, {"--plugin", "--dump"}), 0);
    EXPECT_THAT(out, HasSubstr("p6"));
    EXPECT_THAT(out, Not(HasSubstr("p7")));
}

TEST_F(SkinCheckProgram, ACleanFileSaysNothing)
{
    EXPECT_EQ(Check("<MODEL><PARAM id='a'/></MODEL>"), 0);
    EXPECT_THAT(out, IsEmpty());
}

TEST_F(SkinCheckProgram, WarningsAndErrorsHaveTheirPlaceAndCode)
{
    EXPECT_EQ(Check("<MODEL>\n<PERSISTENT_PARAMS param_ids='x'/>\n</MODEL>"), 1);
    EXPECT_THAT(out, HasSubstr("warning: x: cannot make object persistent"));
    EXPECT_EQ(Check("<MODEL>\n\n<PARAM/>\n</MODEL>"), 2);
    EXPECT_THAT(out, HasSubstr("a.model:3: error: Cannot create parameter, id field is empty."));
    EXPECT_EQ(Check("<MODEL>\n<PARAM/>\n</MODEL>", {}, true), 2);
    EXPECT_THAT(out, HasSubstr("\033[31merror\033[0m: "));
}

TEST_F(SkinCheckProgram, ShowsElementsAsHandlersReceiveThem)
{
    EXPECT_EQ(Check("<MODEL><REPEAT count='2'><PARAM id='p$index$'/></REPEAT></MODEL>", {"--expand"}), 0);
    EXPECT_EQ(out, "<MODEL>\n  <PARAM id=\"p0\">\n  <PARAM id=\"p1\">\n");
}

TEST_F(SkinCheckProgram, ShowsObjectsAndLinks)
{
    EXPECT_EQ(
        Check(
            "<MODEL><PARAM id='a' max='2' default='1'/><PARAM id='b'/><PARAM_LINK from='a' to='b'/></MODEL>",
            {"--dump"}),
        0);
    EXPECT_THAT(out, HasSubstr("a: param = 1 '1.00'"));
    EXPECT_THAT(out, HasSubstr("PARAM_LINK from=\"a\" to=\"b\"\n"));
}

TEST_F(SkinCheckProgram, ShowsTheState)
{
    EXPECT_EQ(Check("<MODEL><PARAM id='volume' persistent='true'/></MODEL>", {"--state"}), 0);
    EXPECT_THAT(out, HasSubstr("volume"));
}

TEST_F(SkinCheckProgram, TakesVariables)
{
    EXPECT_EQ(Check("<MODEL><PARAM id='$N$'/></MODEL>", {"--variable", "N=named", "--expand"}), 0);
    EXPECT_THAT(out, HasSubstr("id=\"named\""));
}

TEST_F(SkinCheckProgram, WalksSkins)
{
    EXPECT_EQ(Check("<SKIN><ROW/></SKIN>", {"--expand"}), 0);
    EXPECT_EQ(out, "<SKIN>\n  <ROW>\n");
    EXPECT_EQ(Check("<SKIN><ROW/>"), 2);
}

TEST_F(SkinCheckProgram, PrintsForPrograms)
{
    EXPECT_EQ(Check("<MODEL>\n<PARAM/></MODEL>", {"--json", "--dump", "--expand", "--state"}), 2);
    EXPECT_THAT(out, HasSubstr("\"severity\": 2"));
    EXPECT_THAT(out,
                HasSubstr("{\"level\": \"error\", \"text\": \"Cannot create parameter, id field is empty.\", "
                          "\"file\": \"a.model\", \"line\": 2}"));
}

TEST_F(SkinCheckProgram, WantsAFile)
{
    EXPECT_EQ(Run({}), 2);
    EXPECT_THAT(errors, Not(IsEmpty()));
    EXPECT_EQ(Run({"--unknown"}), 2);
    EXPECT_EQ(Run({"--help"}), 0);
    EXPECT_EQ(Run({folder.GetPath("none")}), 2);
}

TEST_F(SkinCheckProgram, BuildsSkinsOnThePluginsObjects)
{
    EXPECT_EQ(Check("<SKIN><PARAM_TEXT param_id='dsp.input2' width='90' height='20'/></SKIN>"), 0);
    EXPECT_THAT(out, IsEmpty());
    EXPECT_EQ(Check("<SKIN>\n<PARAM_TEXT param_id='dsp.input99' width='90' height='20'/></SKIN>"), 1);
    EXPECT_THAT(out,
                HasSubstr("a.model:2: warning: dsp.input99: Unknown identifier (object does not exist).\n"));
    EXPECT_EQ(Check("<SKIN>\n\n<TABLE_ROW/></SKIN>"), 2);
    EXPECT_THAT(out, HasSubstr("a.model:3: error: Cannot TABLE_ROW element outside a TABLE element.\n"));
}

TEST_F(SkinCheckProgram, KnowsTheEditorsActions)
{
    const std::string skin =
        "<SKIN><INVISIBLE_ACTION_BUTTON action_id='OpenMenu' width='9' height='9'/></SKIN>";
    EXPECT_EQ(Check(skin), 0) << out;
    EXPECT_EQ(Check("<SKIN><INVISIBLE_ACTION_BUTTON action_id='Explode' width='9' height='9'/></SKIN>"), 1);
}

TEST_F(SkinCheckProgram, KnowsTheObjectsOfTheWindow)
{
    const std::string skin =
        "<SKIN><PARAM_TEXT param_id='window.opacity'/><PARAM_TEXT param_id='window.loaded'/>"
        "<PARAM_LINK from='window.loaded' to='window.opacity'/></SKIN>";
    EXPECT_EQ(Check(skin), 0) << out;
    EXPECT_THAT(out, IsEmpty());
}

TEST_F(SkinCheckProgram, GivesASkinTheModelThatIsNamed)
{
    folder.Write("b.model", "<MODEL><PARAM id='mine' max='7'/></MODEL>");
    const std::string skin = "<SKIN><PARAM_TEXT param_id='mine' width='90' height='20'/></SKIN>";
    EXPECT_EQ(Check(skin, {"--model", folder.GetPath("b.model")}), 0) << out;
    EXPECT_EQ(Check(skin), 1);
    EXPECT_EQ(Check(skin, {"--model", folder.GetPath("b.model"), "--dump"}), 0);
    EXPECT_THAT(out, HasSubstr("mine: param = 0"));
}

} // namespace
} // namespace SkinCheck
