#pragma once

#include "Mirel/Runtime/IObjectFactory.h"

namespace Mirel::Runtime
{

/// Makes a default-constructed C and gives it as an I.
template <class C, class I>
class TObjectFactory : public IObjectFactory
{
public:
    void* Create() const override
    {
        I* object = new C();
        return object;
    }
};

} // namespace Mirel::Runtime
