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

/// One error decides. The rest of the formula is passed over, because the parser's recovery could otherwise
/// drop closing brackets and go deeper than the count of them allows.
void PassOverRest(pANTLR3_BASE_RECOGNIZER recognizer, pANTLR3_UINT8*)
{
    const auto* const parser = static_cast<pANTLR3_PARSER>(recognizer->super);
    const pANTLR3_INT_STREAM tokens = parser->tstream->istream;
    tokens->seek(tokens, tokens->size(tokens));
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

} // namespace

std::optional<CFormulaNode> ParseFormula(const char* text)
{
    // Looks no further than the limit: the text may be long.
    const std::size_t length = text != nullptr ? strnlen(text, CFormulaLimits::maxBytes + 1) : 0;
    if (length == 0 || length > CFormulaLimits::maxBytes)
    {
        return std::nullopt;
    }
    // The stream only reads; its interface does not say so.
    auto* const bytes = reinterpret_cast<pANTLR3_UINT8>(const_cast<char*>(text));
    char name[] = "formula";
    const TPart<ANTLR3_INPUT_STREAM> input(antlr3StringStreamNew(
        bytes, ANTLR3_ENC_8BIT, static_cast<ANTLR3_UINT32>(length), reinterpret_cast<pANTLR3_UINT8>(name)));
    const TPart<FormulaLexer_Ctx_struct> lexer(FormulaLexerNew(input.get()));
    lexer->pLexer->rec->displayRecognitionError = &SkipSilently;
    const TPart<ANTLR3_COMMON_TOKEN_STREAM> tokens(
        antlr3CommonTokenStreamSourceNew(ANTLR3_SIZE_HINT, TOKENSOURCE(lexer)));
    if (!IsFlatEnough(tokens.get()))
    {
        return std::nullopt;
    }

    const TPart<FormulaParser_Ctx_struct> parser(FormulaParserNew(tokens.get()));
    const pANTLR3_BASE_RECOGNIZER recognizer = parser->pParser->rec;
    recognizer->displayRecognitionError = &PassOverRest;
    const pANTLR3_BASE_TREE tree = parser->expression(parser.get()).tree;
    CFormulaNode root;
    const bool valid = recognizer->getNumberOfSyntaxErrors(recognizer) == 0 && tree != nullptr;
    return valid && CopyTree(tree, root, 1) ? std::optional(std::move(root)) : std::nullopt;
}

} // namespace Mirel::SkinEngine
