#include "FormulaOracle.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

namespace
{

using CValue = std::optional<float>;

/// The kinds of tokens: names and values by a letter, all others by their own first spelling.
struct CToken
{
    std::string kind;
    std::string text;
};

bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '$';
}

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Cuts a text into tokens, longest first. Characters that begin none fall out.
class CTokens
{
public:
    static std::vector<CToken> Of(std::string_view text)
    {
        std::vector<CToken> tokens;
        while (!text.empty())
        {
            const CToken token = Next(text);
            if (!token.kind.empty())
            {
                tokens.push_back(token);
            }
            text.remove_prefix(std::max<std::size_t>(token.text.size(), 1));
        }
        return tokens;
    }

private:
    static std::size_t Run(std::string_view text, std::size_t from, bool (*belongs)(char))
    {
        while (from < text.size() && belongs(text[from]))
        {
            ++from;
        }
        return from;
    }

    static CToken Next(std::string_view text)
    {
        const char first = text.front();
        if (IsLetter(first))
        {
            return Word(std::string(
                text.substr(0, Run(text, 1, [](char c) { return IsLetter(c) || IsDigit(c) || c == '.'; }))));
        }
        if (IsDigit(first) || first == '.')
        {
            return Number(text);
        }
        if (first == '\'' || first == '#')
        {
            std::size_t end = 1;
            while (end < text.size() && text[end] != first)
            {
                end += first == '\'' && text[end] == '\\' ? 2U
                                                          : 1U; // the digits of an escape are characters too
            }
            return {std::string(1, first), std::string(text.substr(0, end + 1))};
        }
        for (const char* sign : {"||", "&&", "==", "!=", "<>", "<=", ">="})
        {
            if (text.substr(0, 2) == sign)
            {
                const std::string spelling = sign;
                return {spelling == "==" ? "=" : spelling == "<>" ? "!=" : spelling, spelling};
            }
        }
        const bool isSign = std::string_view("=<>+-*/%^!(),").find(first) != std::string_view::npos;
        return {isSign ? std::string(1, first) : "", std::string(1, first)};
    }

    static CToken Word(const std::string& word)
    {
        const char* const kind = word == "or"                        ? "||"
                                 : word == "and"                     ? "&&"
                                 : word == "not"                     ? "!"
                                 : word == "true" || word == "false" ? "b"
                                                                     : "i";
        return {kind, word};
    }

    static CToken Number(std::string_view text)
    {
        const std::size_t whole = Run(text, 0, IsDigit);
        if (whole + 1 < text.size() && text[whole] == '.' && IsDigit(text[whole + 1]))
        {
            return {"n", std::string(text.substr(0, Run(text, whole + 1, IsDigit)))};
        }
        return {"n", std::string(text.substr(0, whole))};
    }
};

struct CBinaryRow
{
    const char* kind;
    float (*value)(float a, float b);
};

bool IsUnordered(float a, float b)
{
    return std::isnan(a) || std::isnan(b);
}

bool IsTrue(float a)
{
    return !std::isnan(a) && a != 0.0f;
}

/// From the loosest to the tightest level.
const std::vector<std::vector<CBinaryRow>> levels = {
    {{"||", [](float a, float b) { return IsTrue(a) || IsTrue(b) ? 1.0f : 0.0f; }}},
    {{"&&", [](float a, float b) { return IsTrue(a) && IsTrue(b) ? 1.0f : 0.0f; }}},
    {{"=", [](float a, float b) { return IsUnordered(a, b) || a == b ? 1.0f : 0.0f; }},
     {"!=", [](float a, float b) { return !IsUnordered(a, b) && a != b ? 1.0f : 0.0f; }}},
    {{"<", [](float a, float b) { return IsUnordered(a, b) || a < b ? 1.0f : 0.0f; }},
     {"<=", [](float a, float b) { return IsUnordered(a, b) || a <= b ? 1.0f : 0.0f; }},
     {">", [](float a, float b) { return !IsUnordered(a, b) && a > b ? 1.0f : 0.0f; }},
     {">=", [](float a, float b) { return !IsUnordered(a, b) && a >= b ? 1.0f : 0.0f; }}},
    {{"+", [](float a, float b) { return a + b; }}, {"-", [](float a, float b) { return a - b; }}},
    {{"*", [](float a, float b) { return a * b; }},
     {"/", [](float a, float b) { return a / b; }},
     {"%", nullptr}},
    {{"^", [](float a, float b) { return std::pow(a, b); }}},
};

float RoundHalvesAway(float a)
{
    const double moved = a > 0.0f ? static_cast<double>(a) + 0.5 : static_cast<double>(a) - 0.5;
    const double whole = std::trunc(moved);
    const bool fits = whole >= -2147483648.0 && whole <= 2147483647.0;
    return fits ? static_cast<float>(static_cast<int>(whole)) : -2147483648.0f;
}

struct CCallRow
{
    const char* name;
    float (*value)(float a);
};

const CCallRow calls[] = {
    {"exp", [](float a) { return std::exp(a); }},
    {"log", [](float a) { return std::log(a); }},
    {"cosh", [](float a) { return std::cosh(a); }},
    {"sinh", [](float a) { return std::sinh(a); }},
    {"tanh", [](float a) { return std::tanh(a); }},
    {"sqrt", [](float a) { return a > 0.0f ? std::sqrt(a) : 0.0f; }},
    {"cos", [](float a) { return std::cos(a); }},
    {"sin", [](float a) { return std::sin(a); }},
    {"tan", [](float a) { return std::tan(a); }},
    {"floor", [](float a) { return std::floor(a); }},
    {"ceil", [](float a) { return std::ceil(a); }},
    {"round", RoundHalvesAway},
    {"abs", [](float a) { return std::fabs(a); }},
};

/// Reads one formula. Each step gives the value of what it read; after a syntax error no value counts.
class CReader
{
public:
    CReader(std::string_view text, float x_, float y_) : tokens(CTokens::Of(text)), x(x_), y(y_) {}

    CFormulaVerdict Read()
    {
        const CValue value = Binary(0);
        const bool isSyntax = !failed && position == tokens.size();
        return {isSyntax, isSyntax ? value : CValue()};
    }

private:
    bool Sees(const std::string& kind, std::size_t ahead = 0) const
    {
        return position + ahead < tokens.size() && tokens[position + ahead].kind == kind;
    }

    bool Takes(const std::string& kind)
    {
        const bool sees = Sees(kind);
        position += sees ? 1 : 0;
        return sees;
    }

    void Needs(const std::string& kind)
    {
        if (!Takes(kind))
        {
            failed = true;
        }
    }

    CValue Binary(std::size_t level)
    {
        if (level == levels.size())
        {
            return Unary();
        }
        CValue left = Binary(level + 1);
        for (const CBinaryRow* row = Operator(level); row != nullptr && !failed; row = Operator(level))
        {
            ++position;
            const CValue right = Binary(level + 1);
            left = left && right && row->value != nullptr ? CValue(row->value(*left, *right)) : CValue();
        }
        return left;
    }

    const CBinaryRow* Operator(std::size_t level) const
    {
        for (const CBinaryRow& row : levels[level])
        {
            if (Sees(row.kind))
            {
                return &row;
            }
        }
        return nullptr;
    }

    CValue Unary()
    {
        if (Takes("!"))
        {
            const CValue value = Primary();
            return value ? CValue(IsTrue(*value) ? 0.0f : 1.0f) : CValue();
        }
        if (Takes("-"))
        {
            const CValue value = Primary();
            return value ? CValue(-*value) : CValue();
        }
        return Primary();
    }

    CValue Primary()
    {
        if (failed)
        {
            return std::nullopt;
        }
        if (Takes("("))
        {
            const CValue value = Binary(0);
            Needs(")");
            return value;
        }
        if (Sees("i"))
        {
            return Sees("(", 1) ? Call() : Name();
        }
        if (Sees("n"))
        {
            return std::strtof(tokens[position++].text.c_str(), nullptr);
        }
        if (Sees("b"))
        {
            return tokens[position++].text == "true" ? 1.0f : 0.0f;
        }
        failed = !Takes("'") && !Takes("#");
        return std::nullopt;
    }

    CValue Name()
    {
        const std::string& name = tokens[position++].text;
        return name == "pi"  ? CValue(3.14159274f)
               : name == "x" ? CValue(x)
               : name == "y" ? CValue(y)
                             : CValue();
    }

    CValue Call()
    {
        const std::string name = tokens[position].text;
        position += 2;
        std::vector<CValue> arguments;
        if (!Sees(")"))
        {
            do
            {
                arguments.push_back(Binary(0));
            } while (!failed && Takes(","));
        }
        Needs(")");
        return Apply(name, arguments);
    }

    static CValue Apply(const std::string& name, const std::vector<CValue>& arguments)
    {
        for (const CValue& argument : arguments)
        {
            if (!argument)
            {
                return std::nullopt;
            }
        }
        if (arguments.size() == 2 && name == "min")
        {
            return *arguments[1] >= *arguments[0] ? arguments[0] : arguments[1];
        }
        if (arguments.size() == 2 && name == "max")
        {
            return *arguments[0] >= *arguments[1] ? arguments[0] : arguments[1];
        }
        for (const CCallRow& row : calls)
        {
            if (arguments.size() == 1 && name == row.name)
            {
                return row.value(*arguments[0]);
            }
        }
        return std::nullopt;
    }

    std::vector<CToken> tokens;
    float x;
    float y;
    std::size_t position = 0;
    bool failed = false;
};

} // namespace

CFormulaVerdict JudgeFormula(std::string_view text, float x, float y)
{
    return CReader(text, x, y).Read();
}

} // namespace Mirel::SkinEngine
