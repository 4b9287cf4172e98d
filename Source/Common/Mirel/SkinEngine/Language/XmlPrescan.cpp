#include "Mirel/SkinEngine/Language/XmlPrescan.h"

#include "Mirel/SkinEngine/Limits.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>

namespace Mirel::SkinEngine
{

namespace
{

bool IsBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// Ends of a name; every other character is taken for a part of it.
bool EndsName(char c)
{
    return IsBlank(c) || c == '=' || c == '/' || c == '>' || c == '<' || c == '"' || c == '\'';
}

/// Walks over the markup of a text whose markup characters are single bytes.
class CMarkupScanner
{
public:
    explicit CMarkupScanner(std::string_view text_) : text(text_) {}

    CPrescanResult Scan()
    {
        while (reason.empty() && SkipTo("<") && ScanMarkup())
        {
        }
        const auto scanned = text.substr(0, std::min(position, text.size()));
        const auto lines = static_cast<std::size_t>(std::count(scanned.begin(), scanned.end(), '\n'));
        return {reason, reason.empty() ? 0 : lines + 1};
    }

private:
    std::string_view Rest() const { return text.substr(position); }

    /// Stands on the token afterwards; false, at the end of the text, if there is none.
    bool SkipTo(std::string_view token)
    {
        position = std::min(text.find(token, position), text.size());
        return position < text.size();
    }

    bool SkipBehind(std::string_view token)
    {
        if (!SkipTo(token))
        {
            return false;
        }
        position += token.size();
        return true;
    }

    bool Take(std::string_view token)
    {
        if (!Rest().starts_with(token))
        {
            return false;
        }
        position += token.size();
        return true;
    }

    bool Refuse(std::string why)
    {
        reason = std::move(why);
        return false;
    }

    /// False ends the scan.
    bool ScanMarkup()
    {
        if (Take("<!--"))
        {
            return SkipBehind("-->");
        }
        if (Take("<![CDATA["))
        {
            return SkipBehind("]]>");
        }
        if (Take("<!DOCTYPE"))
        {
            return ScanDocumentType();
        }
        if (Take("<?"))
        {
            return SkipBehind("?>");
        }
        if (Take("</"))
        {
            depth -= std::min<std::size_t>(depth, 1);
            return SkipBehind(">");
        }
        ++position;
        return ScanStartTag();
    }

    bool ScanDocumentType()
    {
        const std::size_t begin = position;
        bool inSubset = false;
        while (position < text.size() && position - begin <= CLimits::maxDocumentTypeBytes)
        {
            const char c = text[position];
            if (c == '>' && !inSubset)
            {
                ++position;
                return true;
            }
            inSubset = (inSubset || c == '[') && c != ']';
            if (!SkipDeclarationPart(c))
            {
                break;
            }
        }
        return position - begin > CLimits::maxDocumentTypeBytes &&
               Refuse("document type longer than " + std::to_string(CLimits::maxDocumentTypeBytes) +
                      " bytes");
    }

    /// One character of a document type, or all of a literal, a comment or an instruction.
    bool SkipDeclarationPart(char c)
    {
        if (Take("<!--"))
        {
            return SkipBehind("-->");
        }
        if (Take("<?"))
        {
            return SkipBehind("?>");
        }
        ++position;
        return (c != '"' && c != '\'') || SkipBehind(std::string_view(&c, 1));
    }

    bool ScanStartTag()
    {
        if (!ScanName())
        {
            return false;
        }
        std::size_t attributes = 0;
        for (SkipBlanks(); position < text.size(); SkipBlanks())
        {
            const char c = text[position];
            if (c == '>' || c == '/')
            {
                return EndStartTag(c == '/');
            }
            ++attributes;
            if (attributes > CLimits::maxAttributes)
            {
                return Refuse("more than " + std::to_string(CLimits::maxAttributes) + " attributes");
            }
            if (!ScanAttribute())
            {
                return false;
            }
        }
        return false;
    }

    bool EndStartTag(bool empty)
    {
        if (depth + 1 > CLimits::maxFileDepth)
        {
            return Refuse("elements nested deeper than " + std::to_string(CLimits::maxFileDepth));
        }
        position += empty ? 1 : 0;
        depth += empty ? 0 : 1;
        return Take(">");
    }

    bool ScanName()
    {
        const std::size_t begin = position;
        while (position < text.size() && !EndsName(text[position]))
        {
            ++position;
        }
        if (position - begin > CLimits::maxNameBytes)
        {
            return Refuse("a name longer than " + std::to_string(CLimits::maxNameBytes) + " bytes");
        }
        return position > begin;
    }

    void SkipBlanks()
    {
        while (position < text.size() && IsBlank(text[position]))
        {
            ++position;
        }
    }

    bool ScanAttribute()
    {
        if (!ScanName())
        {
            return false;
        }
        SkipBlanks();
        if (!Take("="))
        {
            return false;
        }
        SkipBlanks();
        if (position == text.size() || (text[position] != '"' && text[position] != '\''))
        {
            return false;
        }
        const std::string_view quote = text.substr(position, 1);
        const std::size_t begin = ++position;
        const bool closed = SkipBehind(quote);
        if (position - begin > CLimits::maxAttributeBytes)
        {
            return Refuse("an attribute longer than " + std::to_string(CLimits::maxAttributeBytes) +
                          " bytes");
        }
        return closed;
    }

    std::string_view text;
    std::size_t position = 0;
    std::size_t depth = 0;
    std::string reason;
};

/// Bytes in which the markup of 16-bit text stands as it does in 8-bit text.
std::string NarrowMarkup(std::string_view file, std::size_t lowByte)
{
    std::string narrow;
    narrow.reserve(file.size() / 2);
    for (std::size_t i = 0; i + 1 < file.size(); i += 2)
    {
        constexpr char anyLetter = 'x';
        const char high = file[i + 1 - lowByte];
        const char low = file[i + lowByte];
        narrow.push_back(high == '\0' ? low : anyLetter);
    }
    return narrow;
}

/// The name in the XML declaration, in lower case; empty if there is none.
std::string DeclaredEncoding(std::string_view text)
{
    constexpr std::string_view keyword = "encoding";
    const std::string_view declaration =
        text.starts_with("<?xml") ? text.substr(0, text.find("?>")) : std::string_view();
    const std::size_t found = declaration.find(keyword);
    if (found == std::string_view::npos)
    {
        return {};
    }
    const std::size_t begin = declaration.find_first_of("\"'", found);
    const std::size_t end = begin == std::string_view::npos ? std::string_view::npos
                                                            : declaration.find(declaration[begin], begin + 1);
    if (end == std::string_view::npos)
    {
        return {};
    }
    std::string name(declaration.substr(begin + 1, end - begin - 1));
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
    return name;
}

/// Encodings in which a byte with the value of a markup character is that character.
bool KeepsMarkup(const std::string& encoding)
{
    constexpr std::array prefixes = {"utf-8", "utf8",        "us-ascii", "ascii",   "iso-8859-", "iso_8859",
                                     "latin", "windows-125", "cp125",    "koi8-",   "shift_jis", "sjis",
                                     "euc-",  "gb2312",      "gbk",      "gb18030", "big5"};
    return encoding.empty() ||
           std::any_of(prefixes.begin(), prefixes.end(),
                       [&encoding](const char* prefix) { return encoding.starts_with(prefix); });
}

} // namespace

CPrescanResult PrescanXml(std::string_view file)
{
    using namespace std::string_view_literals;
    if (file.starts_with("\xFE\xFF") || file.starts_with("\0<"sv))
    {
        return CMarkupScanner(NarrowMarkup(file, 1)).Scan();
    }
    if ((file.starts_with("\xFF\xFE") && !file.starts_with("\xFF\xFE\0\0"sv)) || file.starts_with("<\0"sv))
    {
        if (file.starts_with("<\0\0"sv))
        {
            return {"an encoding that is not supported", 1};
        }
        return CMarkupScanner(NarrowMarkup(file, 0)).Scan();
    }
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (file.starts_with(byteOrderMark))
    {
        file.remove_prefix(byteOrderMark.size());
    }
    const std::string encoding = DeclaredEncoding(file);
    const bool startsAsText = file.empty() || file.front() == '<' || IsBlank(file.front());
    if (!startsAsText || !KeepsMarkup(encoding))
    {
        return {encoding.empty() ? "no XML at its beginning" : "an encoding that is not supported", 1};
    }
    return CMarkupScanner(file).Scan();
}

} // namespace Mirel::SkinEngine
