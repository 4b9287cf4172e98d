#include "Mirel/SkinEngine/Model/FormulaNesting.h"

#include <algorithm>

namespace Mirel::SkinEngine
{

namespace
{

thread_local int nestedCalls = 0;
thread_local int callsInAll = 0;
thread_local int nestedCopies = 0;
thread_local int copiesInAll = 0;
thread_local SFormulaSize copied;

} // namespace

CFormulaCall::CFormulaCall()
{
    callsInAll = nestedCalls == 0 ? 1 : callsInAll + 1;
    ++nestedCalls;
    allowed = nestedCalls <= maxFormulaNesting && callsInAll <= maxFormulaCalls;
}

CFormulaCall::~CFormulaCall()
{
    --nestedCalls;
}

CFormulaCopy::CFormulaCopy() : outer(copied)
{
    copied = {};
    if (nestedCopies++ == 0)
    {
        copiesInAll = 0;
    }
    ++copiesInAll;
}

CFormulaCopy::~CFormulaCopy()
{
    const SFormulaSize size = GetSize();
    copied = {outer.count + size.count, std::max(outer.depth, size.depth)};
    if (--nestedCopies == 0)
    {
        copied = {};
    }
}

bool CFormulaCopy::IsAllowed() const
{
    return nestedCopies <= maxFormulaNesting && copiesInAll <= maxCopiedFormulas &&
           GetSize().depth <= maxFormulaNesting;
}

SFormulaSize CFormulaCopy::GetSize() const
{
    return {copied.count + 1, copied.depth + 1};
}

void CFormulaCopy::Add(const SFormulaSize& size)
{
    if (nestedCopies > 0)
    {
        copied = {copied.count + size.count, std::max(copied.depth, size.depth)};
        copiesInAll += size.count;
    }
}

} // namespace Mirel::SkinEngine
