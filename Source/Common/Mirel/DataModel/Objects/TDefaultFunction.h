#pragma once

#include <memory>

namespace Mirel::DataModel::Objects
{

/// The default function of a description: an explicit one, not owned, or else a constant that is made on the
/// first request and stays the same object until it is dropped. F is the function's interface, Constant the
/// class of the constant.
template <class F, class Constant>
class TDefaultFunction
{
public:
    const F& Get(float constantValue) const
    {
        if (explicitFunction != nullptr)
        {
            return *explicitFunction;
        }
        if (constant == nullptr)
        {
            constant = std::make_unique<const Constant>(constantValue);
        }
        return *constant;
    }

    /// Null if there is none.
    const F* GetExplicit() const { return explicitFunction; }

    void SetExplicit(const F* function)
    {
        explicitFunction = function;
        constant.reset();
    }

    void DropConstant() { constant.reset(); }

private:
    const F* explicitFunction = nullptr;
    mutable std::unique_ptr<const Constant> constant;
};

} // namespace Mirel::DataModel::Objects
