#pragma once

namespace Mirel::Core
{

/// A destructor and nothing else, so that one list can own objects of unrelated classes.
class IDestroy
{
public:
    virtual ~IDestroy() = default;
};

} // namespace Mirel::Core
