#pragma once

#include "Mirel/Graphics/CFont.h"

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Mirel::Graphics
{

class CFontLibrary;

/// The folder with the faces that the product ships, inside of its data folder.
std::string GetFontsFolder(const std::string& dataFolder);

/// Makes the fonts of one skin, each description once. Faces are looked for among those loaded with LoadFont,
/// those that the product ships, and at last those of the system; the fonts of the process that it runs in
/// are neither used nor touched. GUI thread.
class CFontManager
{
public:
    /// Takes the product's own faces from that folder (GetFontsFolder). What is missing or broken there is
    /// left out; without any of them the system's sans-serif face stands in.
    explicit CFontManager(const std::string& fontsFolder);
    CFontManager(const CFontManager&) = delete;
    CFontManager& operator=(const CFontManager&) = delete;
    ~CFontManager();

    /// What the product's own faces lack, a text for the log; empty if all are there.
    const std::string& GetProblem() const { return problem; }

    /// Makes the faces of a font file known under their family's name, for this manager. False if it cannot
    /// be read, is no font or is too large (CLimits). Fonts made before keep their faces.
    bool LoadFont(const char* path);

    /// Never none, but empty (CFont::IsEmpty) where no face is found at all.
    CSharedFont GetFont(const CFontDescription& description);

private:
    std::shared_ptr<CFontLibrary> library;
    std::string problem;
    std::vector<CSharedFont> fonts;
    int loadedFiles = 0;
};

} // namespace Mirel::Graphics
