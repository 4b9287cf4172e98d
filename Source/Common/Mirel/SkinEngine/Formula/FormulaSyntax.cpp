#include "Mirel/SkinEngine/Formula/FormulaSyntax.h"

#include "Mirel/SkinEngine/Formula/Limits.h"

// The generated headers bring the run time's, whose macros have names as common as VERSION: they stay here.
#include <FormulaLexer.h>
#include <FormulaParser.h>

#include <cstring>
#include <memory>
#include <utility>

namespace Mirel::SkinEngine
{

namespace
{

struct CRelease
{
    void operator()(pANTLR3_INPUT_STREAM stream) const { stream->close(stream); }

    template <class T>
    void operator()(T* part) const
    {
        part->free(part);
    }
};

template <class T>
using TPart = std::unique_ptr<T, CRelease>;

/// The run time would print lexer errors; it goes on behind the character that begins no token.
void SkipSilently(pANTLR3_BASE_RECOGNIZER, pANTLR3_UINT8*) {}

/// The token that the first error is about; the number of tokens where it is the end of the text.
ANTLR3_UINT32 FindWrongToken(const ANTLR3_EXCEPTION& exception, pANTLR3_VECTOR tokens)
{
    const auto typeAt = [tokens](ANTLR3_UINT32 i)
    {
        const auto token = static_cast<pANTLR3_COMMON_TOKEN>(tokens->get(tokens, i));
        return static_cast<EFormulaToken>(token->getType(token));
    };
    auto index = static_cast<ANTLR3_UINT32>(exception.index);
    // A name is wrong only for what follows it, which tells a call from a parameter.
    if (index < tokens->count && typeAt(index) == EFormulaToken::Identifier &&
        exception.type == ANTLR3_NO_VIABLE_ALT_EXCEPTION)
    {
        ++index;
        while (index < tokens->count && typeAt(index) == EFormulaToken::Blank)
        {
            ++index;
        }
    }
    return index;
}

/// One error decides. The rest of the formula is passed over, because the parser's recovery could otherwise
/// drop closing brackets and go deeper than the count of them allows.
void PassOverRest(pANTLR3_BASE_RECOGNIZER recognizer, pANTLR3_UINT8*)
{
    const pANTLR3_TOKEN_STREAM stream = static_cast<pANTLR3_PARSER>(recognizer->super)->tstream;
    auto* const wrongToken = static_cast<std::optional<ANTLR3_UINT32>*>(recognizer->state->userp);
    if (!wrongToken->has_value())
    {
        const auto tokens = static_cast<pANTLR3_COMMON_TOKEN_STREAM>(stream->super);
        *wrongToken = FindWrongToken(*recognizer->state->exception, tokens->getTokens(tokens));
    }
    stream->istream->seek(stream->istream, stream->istream->size(stream->istream));
}

/// Whether brackets nest no deeper than the parser may recurse.
bool IsFlatEnough(pANTLR3_COMMON_TOKEN_STREAM stream)
{
    const pANTLR3_VECTOR tokens = stream->getTokens(stream);
    int depth = 0;
    for (ANTLR3_UINT32 i = 0; i < tokens->count; ++i)
    {
        const auto token = static_cast<pANTLR3_COMMON_TOKEN>(tokens->get(tokens, i));
        switch (static_cast<EFormulaToken>(token->getType(token)))
        {
        case EFormulaToken::BracketOpen:
            if (++depth > CFormulaLimits::maxBrackets)
            {
                return false;
            }
            break;
        case EFormulaToken::BracketClose:
            --depth;
            break;
        default:
            break;
        }
    }
    return true;
}

/// Copies a tree of at most maxDepth nodes from root to leaf. False for a deeper one.
bool CopyTree(pANTLR3_BASE_TREE tree, CFormulaNode& node, int depth)
{
    if (depth > CFormulaLimits::maxDepth)
    {
        return false;
    }
    const pANTLR3_STRING text = tree->getText(tree);
    node.type = static_cast<EFormulaToken>(tree->getType(tree));
    node.text.assign(reinterpret_cast<const char*>(text->chars), text->len);
    const ANTLR3_UINT32 count = tree->getChildCount(tree);
    node.children.resize(count);
    for (ANTLR3_UINT32 i = 0; i < count; ++i)
    {
        if (!CopyTree(static_cast<pANTLR3_BASE_TREE>(tree->getChild(tree, i)), node.children[i], depth + 1))
        {
            return false;
        }
    }
    return true;
}

using EKind = CFormulaFault::EKind;

/// The byte at which a token starts; the length for the end of the text.
std::size_t PositionOf(std::optional<ANTLR3_UINT32> index, pANTLR3_VECTOR tokens, const char* text,
                       std::size_t length)
{
    if (!index || *index >= tokens->count)
    {
        return length;
    }
    const auto token = static_cast<pANTLR3_COMMON_TOKEN>(tokens->get(tokens, *index));
    return static_cast<std::size_t>(token->getStartIndex(token) - reinterpret_cast<ANTLR3_MARKER>(text));
}

EKind ParseTokens(pANTLR3_COMMON_TOKEN_STREAM tokens, const char* text, std::size_t length,
                  CFormulaNode& root, CFormulaFault& fault)
{
    if (!IsFlatEnough(tokens))
    {
        return EKind::TooManyBrackets;
    }
    const TPart<FormulaParser_Ctx_struct> parser(FormulaParserNew(tokens));
    const pANTLR3_BASE_RECOGNIZER recognizer = parser->pParser->rec;
    std::optional<ANTLR3_UINT32> wrongToken;
    recognizer->state->userp = &wrongToken;
    recognizer->displayRecognitionError = &PassOverRest;
    const pANTLR3_BASE_TREE tree = parser->expression(parser.get()).tree;
    if (recognizer->getNumberOfSyntaxErrors(recognizer) != 0 || tree == nullptr)
    {
        fault.position = PositionOf(wrongToken, tokens->getTokens(tokens), text, length);
        return EKind::Syntax;
    }
    return CopyTree(tree, root, 1) ? EKind::None : EKind::TooDeep;
}

/// The length is that of the text and within the limits.
EKind ParseText(const char* text, std::size_t length, CFormulaNode& root, CFormulaFault& fault)
{
    // The stream only reads; its interface does not say so.
    auto* const bytes = reinterpret_cast<pANTLR3_UINT8>(const_cast<char*>(text));
    char name[] = "formula";
    const TPart<ANTLR3_INPUT_STREAM> input(antlr3StringStreamNew(
        bytes, ANTLR3_ENC_8BIT, static_cast<ANTLR3_UINT32>(length), reinterpret_cast<pANTLR3_UINT8>(name)));
    const TPart<FormulaLexer_Ctx_struct> lexer(FormulaLexerNew(input.get()));
    const pANTLR3_BASE_RECOGNIZER recognizer = lexer->pLexer->rec;
    recognizer->displayRecognitionError = &SkipSilently;
    const TPart<ANTLR3_COMMON_TOKEN_STREAM> tokens(
        antlr3CommonTokenStreamSourceNew(ANTLR3_SIZE_HINT, TOKENSOURCE(lexer)));
    const EKind kind = ParseTokens(tokens.get(), text, length, root, fault);
    fault.skips = static_cast<int>(recognizer->getNumberOfSyntaxErrors(recognizer));
    return kind;
}

} // namespace

std::optional<CFormulaNode> ParseFormula(const char* text, CFormulaFault* fault)
{
    // Looks no further than the limit: the text may be long.
    const std::size_t length = text != nullptr ? strnlen(text, CFormulaLimits::maxBytes + 1) : 0;
    CFormulaFault met;
    CFormulaNode root;
    if (length == 0)
    {
        met.kind = EKind::Empty;
    }
    else if (length > CFormulaLimits::maxBytes)
    {
        met.kind = EKind::TooLong;
    }
    else
    {
        met.kind = ParseText(text, length, root, met);
    }
    if (fault != nullptr)
    {
        *fault = met;
    }
    return met.kind == EKind::None ? std::optional(std::move(root)) : std::nullopt;
}

} // namespace Mirel::SkinEngine
