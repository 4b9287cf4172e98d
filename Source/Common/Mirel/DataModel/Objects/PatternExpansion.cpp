#include "Mirel/DataModel/Objects/PatternExpansion.h"

#include "Mirel/DataModel/Objects/Limits.h"
#include "Mirel/Serialization/Utf8.h"

#include <algorithm>

namespace Mirel::DataModel::Objects
{

namespace
{

constexpr std::size_t none = std::string_view::npos;

/// The closing braces of a pattern, looked for in one pass however often it is asked.
class CClosingBraces
{
public:
    explicit CClosingBraces(std::string_view pattern_) : pattern(pattern_) {}

    /// The first closing brace from a position on; positions must not go back.
    std::size_t FindFrom(std::size_t position)
    {
        if (!searched || (found != none && found < position))
        {
            searched = true;
            found = pattern.find('}', position);
        }
        return found;
    }

private:
    std::string_view pattern;
    std::size_t found = none;
    bool searched = false;
};

} // namespace

std::string ExpandPattern(std::string_view pattern, const PlaceholderExpansion& expand)
{
    std::string result;
    CClosingBraces closingBraces(pattern);
    std::size_t copied = 0; ///< Where the text that is not copied yet begins.
    std::size_t open = pattern.find('{');
    while (open != none && result.size() <= maxExpandedText)
    {
        // A brace inside a placeholder stands before the copy mark: nothing is left to copy then.
        result += pattern.substr(std::min(copied, open), open - std::min(copied, open));
        if (open + 1 < pattern.size() && pattern[open + 1] == '{')
        {
            result += '{';
            open = pattern.find('{', open + 2);
            continue;
        }
        const std::size_t close = closingBraces.FindFrom(open);
        if (close == none)
        {
            copied = open;
        }
        else
        {
            expand(pattern.substr(open, close - open + 1), result);
            copied = close + 1;
        }
        open = pattern.find('{', open + 1);
    }
    result += pattern.substr(copied);
    CutToWholeCharacters(result, maxExpandedText);
    return result;
}

std::size_t LengthInWholeCharacters(std::string_view text, std::size_t size)
{
    if (text.size() <= size)
    {
        return text.size();
    }
    while (size > 0 && Serialization::IsUtf8Continuation(text[size]))
    {
        --size;
    }
    return size;
}

void CutToWholeCharacters(std::string& text, std::size_t size)
{
    text.resize(LengthInWholeCharacters(text, size));
}

} // namespace Mirel::DataModel::Objects
