#include "Mirel/Math/IFunction.h"
#include "Mirel/SkinEngine/Formula/CBinaryFunctionFormulaBuilder.h"
#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"
#include "Mirel/SkinEngine/Formula/FormulaSyntax.h"
#include "Support/Texts.h"

#include "FormulaOracle.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <malloc.h>
#include <random>
#include <string>

namespace Mirel::SkinEngine
{

namespace
{

using Tests::Joined;

// The sanitizers take ten times as long for each.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int formulas = 10000;
#else
constexpr int formulas = 100000;
#endif

bool IsSame(float a, float b)
{
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

/// Writes formulas at random, with the same ones each run.
class CWriter
{
public:
    /// A formula of the language in x and y; `room` bounds how far its parts nest.
    std::string Expression(int room)
    {
        std::string text = Operand(room);
        for (int more = Choose(room > 0 ? 4 : 1); more > 0; --more)
        {
            text += Joined({Blank(), Pick(operators), Blank(), Operand(room)});
        }
        return text;
    }

    /// Whole tokens in any order, some run together, and characters that begin none.
    std::string Soup()
    {
        std::string text;
        for (int more = Choose(12); more > 0; --more)
        {
            text += Joined({Pick(soup), Choose(3) != 0 ? " " : ""});
        }
        return text;
    }

private:
    int Choose(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }

    template <std::size_t n>
    std::string Pick(const char* const (&texts)[n])
    {
        return texts[Choose(n)];
    }

    /// Words need a blank beside them, so that they do not become one.
    std::string Blank() { return Pick(blanks); }

    std::string Operand(int room)
    {
        switch (Choose(room > 0 ? 9 : 5))
        {
        case 0:
        case 1:
            return Pick(names);
        case 5:
            return Joined({"-", Primary(room)});
        case 6:
            return Joined({"! ", Primary(room)});
        case 7:
            return Primary(room);
        case 8:
            return Joined({Pick(pairs), "(", Expression(room - 1), " ,", Expression(room - 1), ")"});
        default:
            return Pick(numbers);
        }
    }

    std::string Primary(int room)
    {
        switch (Choose(4))
        {
        case 0:
            return Pick(names);
        case 1:
            return Pick(numbers);
        case 2:
            return Joined({Pick(functions), "(", Expression(room - 1), ")"});
        default:
            return Joined({"(", Expression(room - 1), ")"});
        }
    }

    static constexpr const char* blanks[] = {" ", "  ", "\t", "\n", " \r", "\f"};
    static constexpr const char* names[] = {"x", "x", "y", "pi"};
    static constexpr const char* numbers[] = {"0",   "1",   "2",     "3",    "10",
                                              "0.5", ".25", "7.125", "true", "false"};
    static constexpr const char* pairs[] = {"min", "max"};
    static constexpr const char* operators[] = {"||", "or", "&&", "and", "=", "==", "!=", "<>", "<", "<=",
                                                ">",  ">=", "+",  "-",   "*", "/",  "^",  "+",  "*"};
    static constexpr const char* functions[] = {"exp", "log", "cosh",  "sinh", "tanh",  "sqrt", "cos",
                                                "sin", "tan", "floor", "ceil", "round", "abs"};
    static constexpr const char* soup[] = {
        "x",      "y",   "pi",   "1",    "2",    "0.5", ".5", "true", "false", "'a'",   "'\\u00e9\\''",
        "#1.1.#", "abs", "sin(", "max(", "abs(", "||",  "or", "&&",   "and",   "=",     "==",
        "!=",     "<>",  "<",    "<=",   ">",    ">=",  "+",  "-",    "*",     "/",     "%",
        "^",      "!",   "not",  "(",    ")",    ",",   "(",  ")",    "1",     "x",     "+",
        "*",      "x",   "1",    ")",    "?",    "@",   "[",  "\xc3", "a.b",   "True(",
    };

    std::mt19937 random{20240611};
};

/// Keeps the memory of one formula for the next: the recogniser's pools are so large that the library would
/// hand them back to the system every time, which takes ten times as long as the formula.
void KeepMemory()
{
    constexpr int plenty = 1 << 26;
    // Nobody else is running. NOLINTBEGIN(concurrency-mt-unsafe)
    mallopt(M_MMAP_THRESHOLD, plenty);
    mallopt(M_TRIM_THRESHOLD, plenty);
    // NOLINTEND(concurrency-mt-unsafe)
}

constexpr float points[][2] = {{0.0f, 1.0f}, {-1.5f, 0.25f}, {3.0f, -2.0f}};

} // namespace

TEST(FormulaLanguage, PrecedenceAndValuesAreThoseOfASecondReading)
{
    KeepMemory();
    CWriter writer;
    int nans = 0;
    for (int i = 0; i < formulas; ++i)
    {
        const std::string text = writer.Expression(3);
        CBinaryFunctionFormulaBuilder builder("x", "y");
        const auto function = builder.Compile(text.c_str());
        ASSERT_NE(function, nullptr) << text;
        for (const auto& [x, y] : points)
        {
            const CFormulaVerdict verdict = JudgeFormula(text, x, y);
            ASSERT_TRUE(verdict.value.has_value()) << text;
            const float value = (*function)(x, y);
            ASSERT_TRUE(IsSame(value, *verdict.value))
                << text << " at " << x << ", " << y << ": " << value << ", not " << *verdict.value;
            nans += std::isnan(value) ? 1 : 0;
        }
    }
    EXPECT_LT(nans, formulas) << "hardly a number among the values";
}

TEST(FormulaLanguage, VerdictOnTokensInAnyOrderIsThatOfASecondReading)
{
    KeepMemory();
    CWriter writer;
    int valid = 0;
    int meaningful = 0;
    for (int i = 0; i < formulas; ++i)
    {
        const std::string text = writer.Soup();
        const CFormulaVerdict verdict = JudgeFormula(text, 2.0f, 0.0f);
        const bool isSyntax = ParseFormula(text.c_str()).has_value();
        ASSERT_EQ(isSyntax, verdict.isSyntax) << text;
        valid += isSyntax ? 1 : 0;
        if (isSyntax)
        {
            CBinaryFunctionFormulaBuilder builder("x", "y");
            const auto function = builder.Compile(text.c_str());
            ASSERT_EQ(function != nullptr, verdict.value.has_value()) << text;
            if (function != nullptr)
            {
                ++meaningful;
                ASSERT_TRUE(IsSame((*function)(2.0f, 0.0f), *verdict.value)) << text;
            }
        }
    }
    EXPECT_GT(valid, formulas / 50);
    EXPECT_GT(meaningful, formulas / 100);
    EXPECT_LT(valid, formulas / 2);
}

} // namespace Mirel::SkinEngine
