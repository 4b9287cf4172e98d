#pragma once

namespace Mirel::Math::FunctionsLibrary
{

inline float Product(float x, float y)
{
    return x * y;
}

} // namespace Mirel::Math::FunctionsLibrary
