#pragma once

#include <string>

namespace SkinCheck
{

/// The text as a JSON string, quotes included. A text that is no UTF-8 keeps its ASCII characters; each other
/// byte of it becomes the replacement character.
std::string JsonText(const std::string& text);

} // namespace SkinCheck
