#pragma once

#include "Mirel/Math/TNFunctionsAggregate.h"

namespace Mirel::Math
{

/// Applies the functions of a list one after another, the first one to x. Empty entries are skipped; without
/// functions the value is x. Any thread evaluates.
class CFunctionsComposition : public TNFunctionsAggregate<IFunction>
{
public:
    static constexpr const char* classKey = "{C6B18AB7-10C4-46c3-975E-91255060ECA9}";

    const char* GetTypeKey() const override { return classKey; }
    CFunctionsComposition* Clone() const override { return new CFunctionsComposition(*this); }

    float operator()(float x) const override
    {
        float y = x;
        for (int i = 0; i < GetCount(); ++i)
        {
            const IFunction* function = GetFunction(i);
            if (function != nullptr)
            {
                y = (*function)(y);
            }
        }
        return y;
    }
};

} // namespace Mirel::Math
