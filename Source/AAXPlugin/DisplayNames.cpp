#include "AAXPlugin/DisplayNames.h"

#include "AAXPlugin/NameShortener.h"

#include <array>
#include <cstddef>

namespace MirelExt::AAXPlugin
{

namespace
{

struct CReplacement
{
    std::string_view from;
    std::string_view to;
};

// Those with a blank come first, so that no two blanks are left.
constexpr std::array<CReplacement, 6> LongNameReplacements = {{{" (Stereo)", " S"},
                                                               {" (Mono)", " M"},
                                                               {" (Dual)", " Dual"},
                                                               {"(Stereo)", " S"},
                                                               {"(Mono)", " M"},
                                                               {"(Dual)", " Dual"}}};

constexpr std::array<CReplacement, 2> ShortNameReplacements = {{{"Tarnwell's", "TW"}, {"AAX", ""}}};

constexpr std::size_t LongLimit = 31;
constexpr std::size_t MediumLimit = 16;
constexpr std::size_t ShortLimit = 8;

std::string ReplaceAll(std::string text, const CReplacement& replacement)
{
    for (std::size_t at = text.find(replacement.from); at != std::string::npos;
         at = text.find(replacement.from, at + replacement.to.size()))
    {
        text.replace(at, replacement.from.size(), replacement.to);
    }
    return text;
}

template <std::size_t N>
std::string ReplaceInOrder(std::string_view text, const std::array<CReplacement, N>& replacements)
{
    std::string result(text);
    for (const CReplacement& replacement : replacements)
    {
        result = ReplaceAll(std::move(result), replacement);
    }
    return result;
}

} // namespace

std::string MakeDisplayNames(std::string_view productName)
{
    const std::string longName = ReplaceInOrder(productName, LongNameReplacements);
    const std::string shortName = ReplaceInOrder(productName, ShortNameReplacements);
    return ShortenName(longName, LongLimit) + "\n" + ShortenName(shortName, MediumLimit) + "\n" +
           ShortenName(shortName, ShortLimit);
}

std::vector<std::string> SplitLines(std::string_view text)
{
    std::vector<std::string> lines;
    for (;;)
    {
        const std::size_t end = text.find('\n');
        lines.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
        {
            return lines;
        }
        text.remove_prefix(end + 1);
    }
}

} // namespace MirelExt::AAXPlugin
