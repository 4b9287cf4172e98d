#pragma once

namespace Mirel::SkinEngine
{

// Formulas call curves of the model, which may be formulas that call others, or this very one. The guards
// here let every evaluation and every copy come to an end, in reasonable time and on a reasonable stack. Each
// thread counts for itself.

/// Formulas that call one another in a row. Each may be as deep as a formula is allowed to be.
constexpr int maxFormulaNesting = 16;

/// Calls that one evaluation makes in all: where each formula of a row calls the next twice, they double.
constexpr int maxFormulaCalls = 4096;

/// Formulas in one copied function. Where a copy leads back into what it is made of, it grows each time.
constexpr int maxCopiedFormulas = 1024;

/// One call of a model's function by a formula, for as long as it lives.
class CFormulaCall
{
public:
    CFormulaCall();
    CFormulaCall(const CFormulaCall&) = delete;
    CFormulaCall& operator=(const CFormulaCall&) = delete;
    ~CFormulaCall();

    /// Whether the call is to happen; otherwise its value is 0.
    bool IsAllowed() const { return allowed; }

private:
    bool allowed;
};

/// How large a copied formula is: how many it holds, itself included, and how deep they are nested.
struct SFormulaSize
{
    int count = 0;
    int depth = 0;
};

/// The making of a copy of one formula, for as long as it lives. What is copied inside it adds to its size.
class CFormulaCopy
{
public:
    CFormulaCopy();
    CFormulaCopy(const CFormulaCopy&) = delete;
    CFormulaCopy& operator=(const CFormulaCopy&) = delete;
    ~CFormulaCopy();

    /// Whether there may be such a copy, as far as it has come: asked before it is made and afterwards.
    bool IsAllowed() const;

    /// Of what has been copied since construction, and the formula itself.
    SFormulaSize GetSize() const;

    /// Adds a copy that was made earlier and is copied again.
    static void Add(const SFormulaSize& size);

private:
    SFormulaSize outer;
};

} // namespace Mirel::SkinEngine
