#pragma once

namespace Mirel::Runtime
{

/// What is known of a class at run time. One object per class, process-wide.
class IRTTypeInfo
{
public:
    /// The name as it stands in the code, without namespaces.
    virtual const char* GetClassName() const = 0;

    /// The key under which objects of the class are saved and created; null for a class that is not.
    virtual const char* GetClassKey() const = 0;

    virtual ~IRTTypeInfo() = default;
};

} // namespace Mirel::Runtime
