#pragma once

#include "Mirel/SkinEngine/Language/IElementListener.h"
#include "Mirel/SkinEngine/Model/CSkinCollectionContext.h"

namespace Mirel::SkinEngine
{

/// Charges the elements of an item to what all collections may hold. GUI thread only.
class CElementCharge : public IElementListener
{
public:
    explicit CElementCharge(CSkinCollectionContext& context_) : context(context_) {}

    void OnElementStart(const char*, const Containers::CNamedAttributes&) override
    {
        if (context.TakeElements(1))
        {
            ++count;
        }
    }
    void OnElementEnd(const char*) override {}

    int GetCount() const { return count; }

private:
    CSkinCollectionContext& context;
    int count = 0;
};

} // namespace Mirel::SkinEngine
