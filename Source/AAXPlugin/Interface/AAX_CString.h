#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// A text on its way between plug-in and host, on the plug-in's side of the boundary.
class AAX_CString
{
public:
    AAX_CString() = default;
    explicit AAX_CString(std::string_view text_) : text(text_) {}

    void Set(std::string_view newText) { text = newText; }

    /// Zero-terminated; valid until the next change.
    const char* Get() const { return text.c_str(); }

    /// In bytes, without the terminating zero.
    std::size_t Length() const { return text.size(); }

private:
    std::string text;
};
