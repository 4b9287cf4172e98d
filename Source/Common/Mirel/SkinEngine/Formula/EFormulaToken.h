#pragma once

namespace Mirel::SkinEngine
{

/// What the recogniser calls the tokens of a formula and the nodes of its tree. FormulaVocab.tokens pins the
/// same numbers for the generated code.
enum class EFormulaToken
{
    Parameter = 4, ///< a name that stands alone, over its identifier
    Negate = 5,    ///< a minus with one operand
    String = 6,
    Or = 7,
    And = 8,
    Equals = 9,
    NotEquals = 10,
    Lower = 11,
    LowerOrEqual = 12,
    Greater = 13,
    GreaterOrEqual = 14,
    Plus = 15,
    Minus = 16,
    Multiply = 17,
    Divide = 18,
    Modulo = 19,
    Power = 20,
    Not = 21,
    Integer = 22,
    Float = 23,
    DateTime = 24,
    Boolean = 25,
    Identifier = 26, ///< as a node: a call, over its arguments
    EscapeSequence = 27,
    UnicodeEscape = 28,
    HexDigit = 29,
    Blank = 30,
    BracketOpen = 31,
    BracketClose = 32,
    Comma = 33,
};

} // namespace Mirel::SkinEngine
