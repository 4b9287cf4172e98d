#pragma once

namespace Mirel::DataModel::Objects
{

/// Turns a parameter's value into the text that the user reads, in UTF-8.
class IParamValueToText
{
public:
    /// Hands out a new text, allocated with array-new, which the caller frees. The pointer is set to null
    /// first; what it held before is not freed.
    virtual void ToText(float value, char*& text) const = 0;

    /// A new converter with the same settings and no listeners, owned by the caller.
    virtual IParamValueToText* Clone() const = 0;

    virtual ~IParamValueToText() = default;
};

} // namespace Mirel::DataModel::Objects
