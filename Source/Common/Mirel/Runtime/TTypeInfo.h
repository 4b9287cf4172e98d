#pragma once

#include "Mirel/Runtime/IRTTypeInfo.h"

namespace Mirel::Runtime
{

/// The class name and class key of T, which gives both as static texts: T::className and T::classKey.
template <class T>
class TTypeInfo : public IRTTypeInfo
{
public:
    const char* GetClassName() const override { return T::className; }
    const char* GetClassKey() const override { return T::classKey; }
};

} // namespace Mirel::Runtime
