#pragma once

namespace SkinCheck
{

/// Sets variables, given as pairs of name and value, in a parser or a factory.
template <class T, class Variables>
void SetAll(T& target, const Variables& variables)
{
    for (const auto& [name, value] : variables)
    {
        target.SetVariable(name.c_str(), value.c_str());
    }
}

} // namespace SkinCheck
