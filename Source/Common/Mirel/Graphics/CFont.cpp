#include "Mirel/Graphics/CFont.h"

#include "Mirel/Graphics/CFontFace.h"
#include "Mirel/Graphics/Limits.h"
#include "Mirel/Serialization/Utf8.h"

#include <cstring>
#include <list>
#include <map>
#include <string_view>
#include <utility>

namespace Mirel::Graphics
{

namespace
{

/// As much of a text as CLimits allow, cut between characters.
std::string_view GetBounded(const char* text)
{
    std::size_t length = strnlen(text, CLimits::maxTextBytes + 1);
    if (length > CLimits::maxTextBytes)
    {
        length = CLimits::maxTextBytes;
        while (length > 0 && Serialization::IsUtf8Continuation(text[length]))
        {
            --length;
        }
    }
    return {text, length};
}

} // namespace

/// The layouts that were asked for last, the latest first.
class CFont::CLayouts
{
public:
    using CKey = std::pair<std::string, CTextLayoutRequest>;
    using CShared = std::shared_ptr<const CTextLayout>;

    CShared Find(std::string_view text, const CTextLayoutRequest& request)
    {
        const auto found = places.find(std::pair(text, request));
        if (found == places.end())
        {
            return nullptr;
        }
        entries.splice(entries.begin(), entries, found->second);
        return entries.front().second;
    }

    void Keep(std::string_view text, const CTextLayoutRequest& request, CShared layout)
    {
        if (text.size() > longestKept)
        {
            return;
        }
        if (entries.size() == mostKept)
        {
            places.erase(GetView(entries.back().first));
            entries.pop_back();
        }
        entries.emplace_front(CKey(text, request), std::move(layout));
        places.emplace(GetView(entries.front().first), entries.begin());
    }

private:
    /// Labels of some rulers and the texts of a window; layouts take some kilobytes each.
    static constexpr std::size_t mostKept = 256;
    static constexpr std::size_t longestKept = 256;

    using CEntries = std::list<std::pair<CKey, CShared>>;
    using CView = std::pair<std::string_view, CTextLayoutRequest>;

    static CView GetView(const CKey& key) { return {key.first, key.second}; }

    CEntries entries;
    std::map<CView, CEntries::iterator> places; ///< Texts are those of the entries.
};

CFont::CFont(CFontDescription description_, std::unique_ptr<CFontFace> face_)
    : description(std::move(description_)),
      face(std::move(face_)),
      layouts(std::make_unique<CLayouts>())
{
}

CFont::~CFont() = default;

double CFont::GetAscent() const
{
    return face == nullptr ? 0.0 : face->GetAscent();
}

double CFont::GetDescent() const
{
    return face == nullptr ? 0.0 : face->GetDescent();
}

std::shared_ptr<const CTextLayout> CFont::LayOut(const char* text, const CTextLayoutRequest& request) const
{
    if (face == nullptr || text == nullptr || *text == '\0')
    {
        return nullptr;
    }
    const std::string_view bounded = GetBounded(text);
    if (auto found = layouts->Find(bounded, request))
    {
        return found;
    }
    if (!Serialization::IsUtf8(bounded))
    {
        return nullptr;
    }
    auto layout = face->LayOut(std::string(bounded), request);
    layouts->Keep(bounded, request, layout);
    return layout;
}

} // namespace Mirel::Graphics
