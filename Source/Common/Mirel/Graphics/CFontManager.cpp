#include "Mirel/Graphics/CFontManager.h"

#include "Mirel/Graphics/CFontFace.h"
#include "Mirel/Graphics/CFontLibrary.h"
#include "Mirel/Graphics/Limits.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Mirel::Graphics
{

namespace
{

/// The family that the product ships, and the files of its styles.
const std::string ownFamily = "DejaVu Sans";
constexpr std::array<const char*, 4> ownFiles = {"DejaVuSans.ttf", "DejaVuSans-Bold.ttf",
                                                 "DejaVuSans-Oblique.ttf", "DejaVuSans-BoldOblique.ttf"};

} // namespace

std::string GetFontsFolder(const std::string& dataFolder)
{
    return dataFolder + "/Fonts";
}

CFontManager::CFontManager(const std::string& fontsFolder) : library(std::make_shared<CFontLibrary>())
{
    for (const char* name : ownFiles)
    {
        const std::string path = fontsFolder + "/" + name;
        if (!library->AddFile(path))
        {
            problem += (problem.empty() ? "Could not load font " : ", ") + path;
        }
    }
    if (!library->HasFaces() && !library->AddSystemDefault())
    {
        problem += "; there is no font to draw texts with";
    }
}

CFontManager::~CFontManager() = default;

bool CFontManager::LoadFont(const char* path)
{
    if (loadedFiles >= CLimits::maxLoadedFonts || !library->AddFile(path))
    {
        return false;
    }
    ++loadedFiles;
    return true;
}

CSharedFont CFontManager::GetFont(const CFontDescription& description)
{
    const auto same = [&](const CSharedFont& font) { return font->GetDescription() == description; };
    const auto found = std::find_if(fonts.begin(), fonts.end(), same);
    if (found != fonts.end())
    {
        return *found;
    }
    if (fonts.size() >= CLimits::maxFonts)
    {
        return fonts.front();
    }
    const bool bold = description.weight == CFontDescription::boldWeight;
    std::string family = description.face;
    if (family.empty() ||
        (!library->HasFamily(family) && !library->AddSystemFace(family, bold, description.italic)))
    {
        family = ownFamily;
    }
    const int height = std::clamp(description.height, 1, CLimits::maxFontHeight);
    auto face =
        library->HasFaces() ? std::make_unique<CFontFace>(library, family, height, description) : nullptr;
    fonts.push_back(std::make_shared<CFont>(description, std::move(face)));
    return fonts.back();
}

} // namespace Mirel::Graphics
