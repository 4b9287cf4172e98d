#pragma once

#include <optional>
#include <string>

namespace Mirel::Core
{

/// An owned text that may be null. A null text stays a null pointer, apart from an empty one, except in
/// comparisons, where the two are the same. Short texts are copied without an allocation.
class CCharString
{
public:
    CCharString() = default;

    /// Null makes a null text.
    explicit CCharString(const char* text_) { Assign(text_); }

    /// The text, or null; valid until the next assignment or the end of this object.
    const char* Get() const { return text ? text->c_str() : nullptr; }

    /// The text, or an empty one in place of null.
    const char* GetOrEmpty() const { return text ? text->c_str() : ""; }

    bool IsNull() const { return !text; }

    /// Takes a copy of the text, which may be null or a part of the text held. True if it differs from what
    /// was held; null does not differ from empty.
    bool Assign(const char* newText);

private:
    std::optional<std::string> text;
};

} // namespace Mirel::Core
