#include "Mirel/SkinEngine/Model/PatternMatch.h"

namespace Mirel::SkinEngine
{

bool MatchesPattern(std::string_view text, std::string_view pattern)
{
    std::size_t textPosition = 0;
    std::size_t patternPosition = 0;
    // The last star met, and where in the text the characters after it are tried: only that one needs another
    // try, since all that stands before it is matched by the shortest text there is.
    std::size_t star = std::string_view::npos;
    std::size_t afterStar = 0;
    while (textPosition < text.size())
    {
        if (patternPosition < pattern.size() && pattern[patternPosition] == '*')
        {
            star = patternPosition++;
            afterStar = textPosition;
        }
        else if (patternPosition < pattern.size() && pattern[patternPosition] == text[textPosition])
        {
            ++patternPosition;
            ++textPosition;
        }
        else if (star != std::string_view::npos)
        {
            patternPosition = star + 1;
            textPosition = ++afterStar;
        }
        else
        {
            return false;
        }
    }
    return pattern.find_first_not_of('*', patternPosition) == std::string_view::npos;
}

} // namespace Mirel::SkinEngine
