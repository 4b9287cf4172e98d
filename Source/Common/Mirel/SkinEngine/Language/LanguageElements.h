#pragma once

namespace Mirel::SkinEngine
{

/// Elements and attributes that the parser itself understands.
struct CLanguageElements
{
    static constexpr const char* include = "INCLUDE";
    static constexpr const char* includeOnce = "INCLUDE_ONCE";
    static constexpr const char* define = "DEFINE";
    static constexpr const char* undefine = "UNDEFINE";
    static constexpr const char* templateElement = "TEMPLATE";
    static constexpr const char* templateContent = "TEMPLATE_INNER_CONTENT";
    static constexpr const char* variable = "VARIABLE";
    static constexpr const char* localVariable = "LOCAL_VARIABLE";
    static constexpr const char* repeat = "REPEAT";
    static constexpr const char* script = "SCRIPT";
};

/// Whether the name is one of those with a handler of the parser's own.
bool IsLanguageElement(const char* name);

} // namespace Mirel::SkinEngine
