#include "Host/CHostProgram.h"

#include "Host/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace
{

using testing::HasSubstr;

struct CResult
{
    int code;
    std::string out;
    std::string error;
};

CResult RunProgram(const std::vector<const char*>& options,
                   const std::string& module = Tests::ScopeBankModule())
{
    std::vector<const char*> arguments = {"scope-bank"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    std::ostringstream out;
    std::ostringstream error;
    const int code =
        Host::CHostProgram(out, error, module).Run(static_cast<int>(arguments.size()), arguments.data());
    return {code, out.str(), error.str()};
}

std::string ComponentLines(const std::string& number, const std::string& stemFormat)
{
    const std::string path = "effect 0 component " + number + " ";
    const std::string pointerSize = std::to_string(sizeof(void*));
    return path + "field 0 data-in packet-size 4 port-type 1\n" + path + "field 1 data-in packet-size " +
           pointerSize + " port-type 1\n" + path + "field 2 audio-input\n" + path + "field 3 audio-output\n" +
           path + "field 4 audio-buffer-length\n" + path +
           "field 5 midi-local-input name \"Tarnwell's Scope Bank\" channel-mask 65535\n" + path +
           "field 6 midi-local-output name \"Tarnwell's Scope Bank Out\" channel-mask 65535\n" + path +
           "property 11 manufacturer-id 0x746E776C \"tnwl\"\n" + path +
           "property 12 product-id 0x35383436 \"5846\"\n" + path + "property 60 flag 0x00000001\n" + path +
           "property 51 input-stem-format " + stemFormat + "\n" + path + "property 52 output-stem-format " +
           stemFormat + "\n" + path + "property 13 plugin-id 0x0000000" + number + "\n" + path +
           "process-procedure\n";
}

TEST(CHostProgram, DescribesAllThatTheModuleDeclares)
{
    const CResult result = RunProgram({"--describe"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.out, "effect 0 name \"Tarnwell's Scope Bank\"\n"
                          "effect 0 name \"TW Scope Bank\"\n"
                          "effect 0 name \"TW Scope\"\n"
                          "effect 0 creation-procedure 0 effect-parameters\n"
                          "effect 0 creation-procedure 1 gui\n" +
                              ComponentLines("0", "0x00010002") + ComponentLines("1", "0x00000001") +
                              "effect 0 identifier \"com.tarnwell.Scope Bank.aaxplugin\"\n"
                              "manufacturer name \"Tarnwell\"\n"
                              "package name \"Tarnwell's Scope Bank\"\n"
                              "package name \"TW Scope Bank\"\n"
                              "package name \"TW Scope\"\n"
                              "package version 1\n");
}

TEST(CHostProgram, DescribesTheSameTwice)
{
    EXPECT_EQ(RunProgram({"--describe"}).out, RunProgram({"--describe"}).out);
}

TEST(CHostProgram, ModuleOptionNamesAnotherModule)
{
    const std::string module = Tests::ScopeBankModule();
    const CResult result = RunProgram({"--module", module.c_str(), "--describe"}, "/nowhere");
    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.out, HasSubstr("package version 1\n"));
}

TEST(CHostProgram, HelpSaysHowItIsUsedWithoutAModule)
{
    const CResult result = RunProgram({"--help"}, "/nowhere");
    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.out, HasSubstr("--describe"));
    EXPECT_THAT(result.out, HasSubstr("Examples:"));
    EXPECT_EQ(result.error, "");
}

TEST(CHostProgram, ErrorsAreOneLineAndExitWithOne)
{
    const struct
    {
        std::string module;
        std::string error;
    } rows[] = {{"/nowhere", "no module at \"/nowhere\""},
                {Tests::TestModule("partial"), Tests::MissingExportsOfPartial()},
                {Tests::TestModule("refuses_registration"), "ACFRegisterPlugin failed with code -20004"},
                {Tests::TestModule("empty"), "the module registered no effect"}};
    for (const auto& row : rows)
    {
        const CResult result = RunProgram({"--describe"}, row.module);
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.error, "scope-bank: " + row.error + "\n");
    }
}

TEST(CHostProgram, FailureAtTheEndFollowsTheDescription)
{
    const CResult result = RunProgram({"--describe"}, Tests::TestModule("refuses_shutdown"));
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "effect 0 identifier \"test\"\n");
    EXPECT_EQ(result.error, "scope-bank: ACFShutdown failed with code -5\n");
}

TEST(CHostProgram, UnknownOptionIsAnError)
{
    for (const char* option : {"--unknown", "--module"})
    {
        const CResult result = RunProgram({option});
        EXPECT_EQ(result.code, 1) << option;
        EXPECT_EQ(result.out, "") << option;
        EXPECT_THAT(result.error, testing::MatchesRegex("scope-bank: [^\n]+\n")) << option;
    }
}

} // namespace
