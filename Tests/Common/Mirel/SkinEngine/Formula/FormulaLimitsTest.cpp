#include "Mirel/SkinEngine/Formula/Limits.h"

#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"
#include "Support/SmallStack.h"
#include "Support/Texts.h"
#include "Support/ThreadTime.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <string>

namespace Mirel::SkinEngine
{

namespace
{

using Tests::Joined;
using Tests::Repeated;

// The sanitizers' own work, and the frames that they widen, are no part of the promise.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::size_t stackBytes = std::size_t{1024} * 1024;
constexpr double secondsAllowed = 20.0;
constexpr double megabytesAllowed = 1024.0;
#else
constexpr std::size_t stackBytes = std::size_t{256} * 1024;
constexpr double secondsAllowed = 1.0;
constexpr double megabytesAllowed = 256.0;
#endif

std::string InBrackets(int depth, const std::string& inner)
{
    return Joined({Repeated("(", depth), inner, Repeated(")", depth)});
}

/// The most memory that the program ever held, in megabytes.
double PeakMegabytes()
{
    std::ifstream status("/proc/self/status");
    std::string word;
    double kilobytes = 0.0;
    while (status >> word)
    {
        if (word == "VmHWM:")
        {
            status >> kilobytes;
        }
    }
    return kilobytes / 1024.0;
}

/// Compiles, copies, evaluates and destroys on a small stack; tells whether the formula was valid in both of
/// its forms, and that it came in time.
bool SurvivesAsValid(const std::string& text)
{
    bool valid = false;
    double seconds = 0.0;
    Tests::RunOnStack(stackBytes,
                      [&]
                      {
                          const double begin = Tests::ThreadSeconds();
                          const auto function = CompileFunction(text.c_str(), "x");
                          const auto parametrized = CompileParametrizedFunction(text.c_str(), "x");
                          valid = function != nullptr && parametrized != nullptr;
                          if (valid)
                          {
                              const std::unique_ptr<Math::IFunction> clone(function->Clone());
                              EXPECT_EQ((*clone)(1.0f), (*function)(1.0f));
                              EXPECT_EQ((*parametrized)(1.0f), (*function)(1.0f));
                          }
                          seconds = Tests::ThreadSeconds() - begin;
                      });
    EXPECT_LT(seconds, secondsAllowed);
    EXPECT_LT(PeakMegabytes(), megabytesAllowed);
    return valid;
}

} // namespace

TEST(FormulaLimits, AMegabyteIsRefused)
{
    constexpr std::size_t million = 1000000;
    constexpr int halfMillion = 500000;
    EXPECT_FALSE(SurvivesAsValid(Joined({Repeated("x+", halfMillion), "x"})));
    EXPECT_FALSE(SurvivesAsValid(Repeated("x ", halfMillion)));
    EXPECT_FALSE(SurvivesAsValid(Repeated("??", halfMillion)));
    EXPECT_FALSE(SurvivesAsValid(std::string(million, '1')));
    EXPECT_FALSE(SurvivesAsValid(Joined({"'", std::string(million, 'a')})));
}

TEST(FormulaLimits, AHundredThousandBracketsAreRefused)
{
    constexpr int count = 100000;
    EXPECT_FALSE(SurvivesAsValid(InBrackets(count, "x")));
    EXPECT_FALSE(SurvivesAsValid(Repeated("(", count)));
    EXPECT_FALSE(SurvivesAsValid(Repeated(")", count)));
    EXPECT_FALSE(SurvivesAsValid(Joined({Repeated("abs(", count), "x", Repeated(")", count)})));
}

TEST(FormulaLimits, TheLastByteCounts)
{
    const std::string longest = Joined({"x", std::string(CFormulaLimits::maxBytes - 1, ' ')});
    EXPECT_TRUE(SurvivesAsValid(longest));
    EXPECT_FALSE(SurvivesAsValid(Joined({longest, " "})));
}

TEST(FormulaLimits, TheLastBracketCounts)
{
    constexpr int most = CFormulaLimits::maxBrackets;
    EXPECT_TRUE(SurvivesAsValid(InBrackets(most, "x")));
    EXPECT_FALSE(SurvivesAsValid(InBrackets(most + 1, "x")));
    EXPECT_TRUE(SurvivesAsValid(Joined({Repeated("min(1,", most), "x", Repeated(")", most)})));
    EXPECT_FALSE(SurvivesAsValid(Joined({Repeated("min(1,", most + 1), "x", Repeated(")", most + 1)})));
    EXPECT_TRUE(SurvivesAsValid(Joined({Repeated("!(1-", most), "x", Repeated(")", most)})));
}

TEST(FormulaLimits, ManyBracketsSideBySideAreNotDeep)
{
    EXPECT_TRUE(SurvivesAsValid(Joined({Repeated("abs(x)+", 2 * CFormulaLimits::maxBrackets), "(x)"})));
}

TEST(FormulaLimits, TheLastTermOfASumCounts)
{
    constexpr int operatorsOfLongest = CFormulaLimits::maxDepth - 3; // the first term is a name in a node
    EXPECT_TRUE(SurvivesAsValid(Joined({Repeated("x+", operatorsOfLongest), "x"})));
    EXPECT_TRUE(SurvivesAsValid(Joined({"1", Repeated("+x", operatorsOfLongest + 1)})));
    EXPECT_FALSE(SurvivesAsValid(Joined({Repeated("x+", CFormulaLimits::maxDepth), "x"})));
    EXPECT_FALSE(SurvivesAsValid(Joined({"1", Repeated("+1", CFormulaLimits::maxDepth)})));
}

TEST(FormulaLimits, RowsAndBracketsTogetherKeepToTheDepth)
{
    constexpr int rows = 60;
    EXPECT_TRUE(SurvivesAsValid(Joined({Repeated("(x+x*", rows), "x", Repeated(")", rows)})));
    EXPECT_FALSE(
        SurvivesAsValid(Joined({Repeated("(1+1+1+1+1+abs(x)*", rows), "x", Repeated("+1+1+1+1)", rows)})));
}

TEST(FormulaLimits, WrongFormulasWithinTheLimitsEndInTime)
{
    constexpr int bytes = CFormulaLimits::maxBytes;
    for (const char* const part : {"(",  ")",   "x+", "x ",  "?",  "'", "#",  "f(",   "-",  "(#)#+", "(')'+",
                                   "()", "(1)", ",",  "f(,", "1.", "|", "\\", "\xff", "1(", "((1)",  "(1))"})
    {
        const std::string text = Repeated(part, bytes / static_cast<int>(std::string(part).size()));
        EXPECT_FALSE(SurvivesAsValid(text)) << part;
    }
}

TEST(FormulaLimits, ManyArgumentsAreReadInTime)
{
    EXPECT_FALSE(SurvivesAsValid(Joined({"f(", Repeated("x,", CFormulaLimits::maxBytes / 2 - 2), "x)"})));
}

} // namespace Mirel::SkinEngine
