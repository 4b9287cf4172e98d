#pragma once

#include "Mirel/Graphics/PangoNames.h"

#include <set>
#include <string>

namespace Mirel::Graphics
{

/// The font files that fonts are made of, in a configuration and a font map of their own: what the process
/// has for itself is neither read nor changed. GUI thread.
class CFontLibrary
{
public:
    CFontLibrary();
    CFontLibrary(const CFontLibrary&) = delete;
    CFontLibrary& operator=(const CFontLibrary&) = delete;
    ~CFontLibrary();

    /// True if the file's faces are known from now on. False for what is no font, and beyond CLimits.
    bool AddFile(const std::string& path);

    /// Whether a family of that name is known; case does not matter.
    bool HasFamily(const std::string& family) const;
    bool HasFaces() const { return !files.empty(); }

    /// Takes the file of the system's face that has just that family, in the style that comes nearest. False
    /// if the system has no such family.
    bool AddSystemFace(const std::string& family, bool bold, bool italic);

    /// Takes the file of the system's own sans-serif face. False if it has none.
    bool AddSystemDefault();

    /// For the caller to release.
    PangoContext* CreateContext() const;

private:
    std::string FindSystemFile(const std::string& family, bool bold, bool italic, bool exactly);

    FcConfig* config;
    FcConfig* system = nullptr; ///< Loaded once a face is looked for there.
    PangoFontMap* map;
    std::set<std::string> files;
};

} // namespace Mirel::Graphics
