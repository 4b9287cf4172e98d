#include "SkinCheck/FormulaCheck.h"

#include "SkinCheck/SkinCheckProgram.h"

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
using testing::Not;

struct CResult
{
    int code;
    std::string out;
    std::string error;
};

CResult RunCheck(const std::vector<const char*>& options)
{
    std::vector<const char*> arguments = {"skin-check"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    std::ostringstream out;
    std::ostringstream error;
    const int code = RunProgram(static_cast<int>(arguments.size()), arguments.data(), out, error, false);
    return {code, out.str(), error.str()};
}

} // namespace

TEST(FormulaCheck, TellsWhatAFormulaIs)
{
    const CResult result = RunCheck({"--formula", "2+3*4"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.out, "formula: 2+3*4\n"
                          "valid: yes\n"
                          "valid as: number, function of x, function of x and y\n"
                          "x: 0\n"
                          "y: 0\n"
                          "value: 14\n");
}

TEST(FormulaCheck, EvaluatesAtTheVariables)
{
    EXPECT_THAT(RunCheck({"--formula", "x-y", "--x", "1.5", "--y", "-2"}).out, HasSubstr("value: 3.5\n"));
    EXPECT_THAT(RunCheck({"--formula", "x*2", "--x=0.25"}).out,
                HasSubstr("valid as: function of x, function"));
    EXPECT_THAT(RunCheck({"--formula=-x ^ 2", "--x=-3"}).out, HasSubstr("value: 9\n"));
}

TEST(FormulaCheck, ListsTheNamesOfTheModel)
{
    const CResult result = RunCheck({"--formula", "b + a.c * curve(x) - surface(x, y) + a.c"});
    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.out, HasSubstr("params: a.c, b\n"));
    EXPECT_THAT(result.out, HasSubstr("curves: curve\n"));
    EXPECT_THAT(result.out, HasSubstr("surfaces: surface\n"));
    EXPECT_THAT(result.out, Not(HasSubstr("valid as")));
}

TEST(FormulaCheck, InvalidFormulasAreErrors)
{
    const struct
    {
        std::string text;
        const char* message;
    } rows[] = {
        {"1 + * 2", "error: syntax error at character 5\n"},
        {"(1", "error: syntax error at character 3\n"},
        {"", "error: the formula is empty\n"},
        {"5 % 2", "error: the formula uses %, a text"},
        {std::string(20000, ' '), "error: a formula has 16384 bytes at most\n"},
        {std::string(100, '('), "error: brackets nest 64 deep at most\n"},
    };
    for (const auto& row : rows)
    {
        const CResult result = RunCheck({"--formula", row.text.c_str()});
        EXPECT_EQ(result.code, 2) << row.text;
        EXPECT_THAT(result.out, HasSubstr("valid: no\n"));
        EXPECT_THAT(result.out, HasSubstr(row.message));
    }
}

TEST(FormulaCheck, WarnsOfWhatIsPassedOver)
{
    const CResult result = RunCheck({"--formula", "1 ? + 2"});
    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.out, HasSubstr("value: 3\nwarning: characters without a meaning are passed over\n"));
}

TEST(FormulaCheck, WarnsOfValuesThatAreNotFinite)
{
    EXPECT_EQ(RunCheck({"--formula", "1/x"}).code, 1);
    EXPECT_EQ(RunCheck({"--formula", "1/x", "--x", "2"}).code, 0);
}

TEST(FormulaCheck, PrintsJson)
{
    const CResult result = RunCheck({"--json", "--formula", "gain / x"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "{\n"
                          "  \"formula\": \"gain / x\",\n"
                          "  \"valid\": true,\n"
                          "  \"valid_as\": [],\n"
                          "  \"params\": [\"gain\"],\n"
                          "  \"curves\": [],\n"
                          "  \"surfaces\": [],\n"
                          "  \"x\": 0,\n"
                          "  \"y\": 0,\n"
                          "  \"value\": null,\n"
                          "  \"messages\": [{\"severity\": \"warning\", \"text\": \"the value is no finite "
                          "number\"}]\n"
                          "}\n");
}

TEST(FormulaCheck, AWrongCommandLineIsAnError)
{
    for (const std::vector<const char*>& options : std::vector<std::vector<const char*>>{
             {}, {"--json"}, {"--x", "1"}, {"--formula"}, {"--formula", "1", "--x", "one"}, {"--unknown"}})
    {
        const CResult result = RunCheck(options);
        EXPECT_EQ(result.code, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_NE(result.error, "");
    }
}

TEST(FormulaCheck, HelpsWhenAsked)
{
    const CResult result = RunCheck({"--help"});
    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.out, HasSubstr("--formula"));
}

} // namespace SkinCheck
