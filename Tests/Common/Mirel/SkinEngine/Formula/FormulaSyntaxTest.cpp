#include "Mirel/SkinEngine/Formula/FormulaSyntax.h"

#include "Mirel/SkinEngine/Formula/Limits.h"
#include "Support/Texts.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace Mirel::SkinEngine
{

namespace
{

/// The tree as text: a leaf by what stands in the formula, any other node in brackets with its children.
std::string Shape(const CFormulaNode& node)
{
    if (node.children.empty() && node.type != EFormulaToken::Identifier)
    {
        return node.text;
    }
    std::string shape = "(" + node.text;
    for (const CFormulaNode& child : node.children)
    {
        shape.append(" ").append(
            child.children.empty() && node.type == EFormulaToken::Parameter ? child.text : Shape(child));
    }
    return shape.append(")");
}

/// "error" for what is no formula.
std::string ShapeOf(const char* text)
{
    const auto root = ParseFormula(text);
    return root ? Shape(*root) : "error";
}

/// The number of the root's type, -1 for what is no formula.
int TypeOf(const char* text)
{
    const auto root = ParseFormula(text);
    return root ? static_cast<int>(root->type) : -1;
}

struct CShapeRow
{
    const char* text;
    const char* shape;
};

void ExpectShapes(std::initializer_list<CShapeRow> rows)
{
    for (const auto& [text, shape] : rows)
    {
        EXPECT_EQ(ShapeOf(text), shape) << text;
    }
}

} // namespace

TEST(FormulaSyntax, EverySpellingOfATokenHasItsNumber)
{
    const struct
    {
        const char* text;
        int type;
    } rows[] = {
        {"a", 4},    {"-a", 5},          {"'a'", 6},    {"''", 6},    {"1||2", 7},    {"1 or 2", 7},
        {"1&&2", 8}, {"1 and 2", 8},     {"1=2", 9},    {"1==2", 9},  {"1!=2", 10},   {"1<>2", 10},
        {"1<2", 11}, {"1<=2", 12},       {"1>2", 13},   {"1>=2", 14}, {"1+2", 15},    {"1-2", 16},
        {"1*2", 17}, {"1/2", 18},        {"1%2", 19},   {"1^2", 20},  {"!1", 21},     {"not 1", 21},
        {"1", 22},   {"0123456789", 22}, {"1.5", 23},   {".5", 23},   {"12.034", 23}, {"#1.2.2024#", 24},
        {"##", 24},  {"true", 25},       {"false", 25}, {"f()", 26},  {"f(1)", 26},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(TypeOf(row.text), row.type) << row.text;
    }
}

TEST(FormulaSyntax, LeavesKeepTheirText)
{
    for (const char* const text : {"0042", "1.50", ".5", "'a b'", "#now#", "true", "false"})
    {
        EXPECT_EQ(ShapeOf(text), text);
    }
}

TEST(FormulaSyntax, EscapesOfStringsAreRead)
{
    for (const char* const text : {R"('\n')", R"('\r\t')", R"('\'')", R"('\\')", R"('\u00eF')",
                                   R"('a\u0041b')", "'#'", "' !\"&()'", "'\xc3\xa9'"})
    {
        EXPECT_EQ(TypeOf(text), 6) << text;
    }
}

TEST(FormulaSyntax, DatesHoldAnythingButTheirSign)
{
    EXPECT_EQ(TypeOf("#'\n\t\x01 ((#"), 24);
}

TEST(FormulaSyntax, IdentifiersMayHoldDotsDollarsAndDigits)
{
    ExpectShapes({{"a.b", "(PARAM a.b)"},
                  {"dsp.input1.level", "(PARAM dsp.input1.level)"},
                  {"_a", "(PARAM _a)"},
                  {"$", "(PARAM $)"},
                  {"Z9_$.", "(PARAM Z9_$.)"}});
}

TEST(FormulaSyntax, KeywordsAreWholeLowerCaseWords)
{
    ExpectShapes({{"order", "(PARAM order)"},
                  {"android", "(PARAM android)"},
                  {"notx", "(PARAM notx)"},
                  {"trueish", "(PARAM trueish)"},
                  {"True", "(PARAM True)"},
                  {"OR", "(PARAM OR)"},
                  {"or.x", "(PARAM or.x)"},
                  {"or", "error"},
                  {"and", "error"},
                  {"not", "error"},
                  {"1 OR 2", "error"}});
}

TEST(FormulaSyntax, BlanksOnlySeparate)
{
    ExpectShapes({{" 1\t+\n2 \f*\r3 ", "(+ 1 (* 2 3))"},
                  {"sqrt (4)", "(sqrt 4)"},
                  {"1 2", "error"},
                  {"1 < = 2", "error"}});
}

TEST(FormulaSyntax, NumbersHaveNoSignAndNoExponent)
{
    ExpectShapes(
        {{"1e3", "error"}, {"1.5e3", "error"}, {"+1", "error"}, {"1.2.3", "error"}, {"5.", "error"}});
}

TEST(FormulaSyntax, EveryLevelBindsTighterThanTheOneBeforeIt)
{
    ExpectShapes({{"1 or 2 and 3", "(or 1 (and 2 3))"},
                  {"1 and 2 or 3", "(or (and 1 2) 3)"},
                  {"1 && 2 = 3", "(&& 1 (= 2 3))"},
                  {"1 = 2 && 3", "(&& (= 1 2) 3)"},
                  {"1 != 2 < 3", "(!= 1 (< 2 3))"},
                  {"1 < 2 != 3", "(!= (< 1 2) 3)"},
                  {"1 <= 2 + 3", "(<= 1 (+ 2 3))"},
                  {"1 - 2 >= 3", "(>= (- 1 2) 3)"},
                  {"1 + 2 * 3", "(+ 1 (* 2 3))"},
                  {"1 / 2 - 3", "(- (/ 1 2) 3)"},
                  {"1 % 2 ^ 3", "(% 1 (^ 2 3))"},
                  {"1 ^ 2 * 3", "(* (^ 1 2) 3)"},
                  {"-1 ^ 2", "(^ (NEGATE 1) 2)"},
                  {"2 ^ -1", "(^ 2 (NEGATE 1))"},
                  {"not 1 ^ 2", "(^ (not 1) 2)"}});
}

TEST(FormulaSyntax, AllBinaryOperatorsGroupFromTheLeft)
{
    for (const char* const op :
         {"or", "||", "and", "&&", "=", "==", "!=", "<>", "<", "<=", ">", ">=", "+", "-", "*", "/", "%", "^"})
    {
        const std::string sign = op;
        const std::string text = std::string("1 ").append(sign).append(" 2 ").append(sign).append(" 3");
        const std::string shape = std::string("(").append(sign).append(" (").append(sign).append(" 1 2) 3)");
        EXPECT_EQ(ShapeOf(text.c_str()), shape);
    }
    ExpectShapes(
        {{"1 - 2 + 3", "(+ (- 1 2) 3)"}, {"1 < 2 >= 3", "(>= (< 1 2) 3)"}, {"1 * 2 / 3", "(/ (* 1 2) 3)"}});
}

TEST(FormulaSyntax, BracketsGroupAndLeaveNoNode)
{
    ExpectShapes({{"(2+3)*4", "(* (+ 2 3) 4)"}, {"((a))", "(PARAM a)"}, {"(1 or 2)", "(or 1 2)"}});
}

TEST(FormulaSyntax, AUnaryOperatorTakesAPrimary)
{
    ExpectShapes({{"-a", "(NEGATE (PARAM a))"},
                  {"-f(1)", "(NEGATE (f 1))"},
                  {"-(-1)", "(NEGATE (NEGATE 1))"},
                  {"!(!1)", "(! (! 1))"},
                  {"1 - -2", "(- 1 (NEGATE 2))"},
                  {"--1", "error"},
                  {"!!1", "error"},
                  {"-!1", "error"},
                  {"not -1", "error"},
                  {"-", "error"}});
}

TEST(FormulaSyntax, CallsTakeAnyNumberOfFormulas)
{
    ExpectShapes({{"f()", "(f)"},
                  {"f(1)", "(f 1)"},
                  {"f(1, a+2)", "(f 1 (+ (PARAM a) 2))"},
                  {"f(1,2,3,g(4))", "(f 1 2 3 (g 4))"},
                  {"f(1,)", "error"},
                  {"f(,1)", "error"},
                  {"f(1 2)", "error"},
                  {"f(1", "error"},
                  {"true(1)", "error"},
                  {"1(2)", "error"},
                  {"(f)(1)", "error"}});
}

TEST(FormulaSyntax, NothingMayStandBehindTheFormula)
{
    ExpectShapes(
        {{"1+2 3", "error"}, {"(1))", "error"}, {"1,2", "error"}, {"1)", "error"}, {"a 'b'", "error"}});
}

TEST(FormulaSyntax, IncompleteFormulasAreErrors)
{
    ExpectShapes({{"", "error"},
                  {"  ", "error"},
                  {"(", "error"},
                  {"()", "error"},
                  {"1+", "error"},
                  {"*1", "error"},
                  {"(1", "error"},
                  {"1 or", "error"}});
    EXPECT_FALSE(ParseFormula(nullptr));
}

TEST(FormulaSyntax, CharactersThatBeginNoTokenAreSkipped)
{
    ExpectShapes({{"1 ? + @ 2", "(+ 1 2)"},
                  {"[1]", "1"},
                  {"a:b", "error"},
                  {"1 \xc3\xa9 + 2", "(+ 1 2)"},
                  {"~`\"{};:\\1", "1"},
                  {"?", "error"}});
}

TEST(FormulaSyntax, AFaultTellsWhatIsWrongAndWhere)
{
    using EKind = CFormulaFault::EKind;
    const struct
    {
        std::string text;
        EKind kind;
        std::size_t position;
        int skips;
    } rows[] = {
        {"1 + 2", EKind::None, 0, 0},
        {"1 ? + @ 2", EKind::None, 0, 2},
        {"", EKind::Empty, 0, 0},
        {"1 + * 2", EKind::Syntax, 4, 0},
        {"(1 + 2", EKind::Syntax, 6, 0},
        {"1 2", EKind::Syntax, 2, 0},
        {"  ", EKind::Syntax, 2, 0},
        {"f(1,)", EKind::Syntax, 4, 0},
        {"1)) + (2", EKind::Syntax, 1, 0},
        {"? --1", EKind::Syntax, 3, 1},
        {"a b c d", EKind::Syntax, 2, 0},
        {std::string(CFormulaLimits::maxBytes + 1, ' '), EKind::TooLong, 0, 0},
        {Tests::Joined({Tests::Repeated("(", 100), "1", Tests::Repeated(")", 100)}), EKind::TooManyBrackets,
         0, 0},
        {Tests::Joined({Tests::Repeated("1+", 300), "1"}), EKind::TooDeep, 0, 0},
    };
    for (const auto& row : rows)
    {
        CFormulaFault fault;
        EXPECT_EQ(ParseFormula(row.text.c_str(), &fault).has_value(), row.kind == EKind::None) << row.text;
        EXPECT_EQ(fault.kind, row.kind) << row.text;
        EXPECT_EQ(fault.position, row.position) << row.text;
        EXPECT_EQ(fault.skips, row.skips) << row.text;
    }
}

TEST(FormulaSyntax, NothingIsPrinted)
{
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    EXPECT_EQ(ShapeOf("1 ? + 2"), "(+ 1 2)");
    EXPECT_EQ(ShapeOf("1 + + ( 2"), "error");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

} // namespace Mirel::SkinEngine
