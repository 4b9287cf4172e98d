#include "Mirel/Serialization/XmlScan.h"

#include "Mirel/Serialization/Limits.h"
#include "Mirel/Serialization/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Mirel::Serialization
{

namespace
{

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t\r\n";

bool IsBlank(char c)
{
    return blanks.find(c) != std::string_view::npos;
}

bool IsNameStart(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

bool IsNameCharacter(char c)
{
    return IsNameStart(c) || (c >= '0' && c <= '9') || c == '.' || c == '-' || c == ':';
}

/// Length of the name at the start of the text, 0 if there is none.
std::size_t NameLength(std::string_view text)
{
    if (text.empty() || !IsNameStart(text.front()) || BeginsWithSkippedMark(text))
    {
        return 0;
    }
    const auto end = std::find_if_not(text.begin() + 1, text.end(), IsNameCharacter);
    return static_cast<std::size_t>(end - text.begin());
}

int DigitValue(char c)
{
    if (c >= '0' && c <= '9')
    {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f')
    {
        return c - 'a' + 10;
    }
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : 16;
}

/// The digits of a numeric character reference name a character. The library would look for the ";" through
/// the whole document and take anything for a number.
bool IsCharacterNumber(std::string_view digits)
{
    std::uint32_t base = 10;
    if (!digits.empty() && digits.front() == 'x')
    {
        base = 16;
        digits.remove_prefix(1);
    }
    constexpr std::uint32_t last = 0x10FFFF;
    std::uint32_t code = 0;
    for (const char c : digits)
    {
        const auto value = static_cast<std::uint32_t>(DigitValue(c));
        if (value >= base || code > last)
        {
            return false;
        }
        code = code * base + value;
    }
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code != 0 && code <= last && !surrogate;
}

bool AreReferencesSound(std::string_view text)
{
    for (std::size_t at = text.find("&#"); at != std::string_view::npos; at = text.find("&#", at + 2))
    {
        constexpr std::size_t longest = 16;
        const std::string_view rest = text.substr(at + 2, longest);
        const std::size_t end = rest.find(';');
        if (end == std::string_view::npos || !IsCharacterNumber(rest.substr(0, end)))
        {
            return false;
        }
    }
    return true;
}

class CXmlScanner
{
public:
    explicit CXmlScanner(std::string_view text_) : text(text_) {}

    bool Scan()
    {
        Skip(byteOrderMark);
        while (!text.empty())
        {
            if (!(text.front() == '<' ? ScanMarkup() : ScanText()))
            {
                return false;
            }
        }
        return rootSeen && open.empty();
    }

private:
    bool Skip(std::string_view token)
    {
        if (!text.starts_with(token))
        {
            return false;
        }
        text.remove_prefix(token.size());
        return true;
    }

    /// Steps over blanks; true if there were any.
    bool SkipBlanks()
    {
        const std::size_t count = std::min(text.find_first_not_of(blanks), text.size());
        text.remove_prefix(count);
        return count != 0;
    }

    /// Steps over everything up to and with the token and gives what stood before it.
    bool TakeUntil(std::string_view token, std::string_view& before)
    {
        const std::size_t end = text.find(token);
        if (end == std::string_view::npos)
        {
            return false;
        }
        before = text.substr(0, end);
        text.remove_prefix(end + token.size());
        return true;
    }

    bool TakeName(std::string_view& name)
    {
        const std::size_t length = NameLength(text);
        name = text.substr(0, length);
        text.remove_prefix(length);
        return length != 0;
    }

    bool CountNode() { return ++nodes <= CLimits::maxXmlNodes; }

    bool ScanText()
    {
        const std::string_view characters = text.substr(0, text.find('<'));
        text.remove_prefix(characters.size());
        if (open.empty())
        {
            return std::all_of(characters.begin(), characters.end(), IsBlank);
        }
        return CountNode() && AreReferencesSound(characters);
    }

    bool ScanMarkup()
    {
        std::string_view content;
        if (!CountNode())
        {
            return false;
        }
        if (Skip("<!--"))
        {
            return TakeUntil("-->", content);
        }
        if (Skip("<![CDATA["))
        {
            return !open.empty() && TakeUntil("]]>", content);
        }
        if (Skip("<!DOCTYPE"))
        {
            return !rootSeen && TakeUntil(">", content) &&
                   content.find_first_of("<[") == std::string_view::npos;
        }
        if (Skip("<?"))
        {
            return ScanInstruction();
        }
        if (Skip("</"))
        {
            return ScanEndTag();
        }
        text.remove_prefix(1);
        return ScanStartTag();
    }

    /// The library ends an instruction at its first ">", so there may be none inside, and takes what begins
    /// with "xml" in any case for the declaration.
    bool ScanInstruction()
    {
        std::string_view content;
        if (!TakeUntil("?>", content) || content.find('>') != std::string_view::npos)
        {
            return false;
        }
        CXmlScanner inside(content);
        std::string_view name;
        if (!inside.TakeName(name))
        {
            return false;
        }
        constexpr std::string_view declaration = "xml";
        const bool declares = name.size() >= declaration.size() &&
                              std::equal(declaration.begin(), declaration.end(), name.begin(),
                                         [](char a, char b) { return a == (b | 0x20); });
        return !declares || (inside.ScanAttributes() && inside.text.empty());
    }

    bool ScanEndTag()
    {
        std::string_view name;
        if (!TakeName(name) || open.empty() || open.back() != name)
        {
            return false;
        }
        open.pop_back();
        SkipBlanks();
        return Skip(">");
    }

    bool ScanStartTag()
    {
        std::string_view name;
        if ((open.empty() && rootSeen) || !TakeName(name) || !ScanAttributes())
        {
            return false;
        }
        rootSeen = true;
        if (Skip("/>"))
        {
            return open.size() < CLimits::maxXmlDepth;
        }
        open.push_back(name);
        return open.size() <= CLimits::maxXmlDepth && Skip(">");
    }

    /// Reads attributes as long as there are some.
    bool ScanAttributes()
    {
        std::size_t count = 0;
        while (SkipBlanks() && !text.empty() && IsNameStart(text.front()))
        {
            comparisons += count;
            ++count;
            if (count > CLimits::maxAttributes || comparisons > CLimits::maxAttributeComparisons ||
                !CountNode() || !ScanAttribute())
            {
                return false;
            }
        }
        return true;
    }

    bool ScanAttribute()
    {
        std::string_view name;
        TakeName(name);
        SkipBlanks();
        if (!Skip("="))
        {
            return false;
        }
        SkipBlanks();
        std::string_view value;
        const bool closed = Skip("\"") ? TakeUntil("\"", value) : Skip("'") && TakeUntil("'", value);
        return closed && value.size() <= CLimits::maxAttributeBytes && AreReferencesSound(value);
    }

    std::string_view text; ///< What has not been read yet.
    std::vector<std::string_view> open;
    bool rootSeen = false;
    std::size_t nodes = 0;
    std::size_t comparisons = 0;
};

} // namespace

bool IsReadableXml(std::string_view text)
{
    return text.size() <= CLimits::maxXmlBytes && text.find('\0') == std::string_view::npos && IsUtf8(text) &&
           CXmlScanner(text).Scan();
}

bool BeginsWithSkippedMark(std::string_view text)
{
    return text.starts_with(byteOrderMark) || text.starts_with("\xEF\xBF\xBE") ||
           text.starts_with("\xEF\xBF\xBF");
}

bool IsXmlName(std::string_view text)
{
    return !text.empty() && NameLength(text) == text.size() && IsUtf8(text);
}

} // namespace Mirel::Serialization
