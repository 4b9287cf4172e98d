#include "Mirel/Graphics/CFontLibrary.h"

#include "Mirel/Graphics/Limits.h"

#include <dlfcn.h>
#include <filesystem>
#include <fontconfig/fontconfig.h>
#include <memory>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>
#include <system_error>

namespace Mirel::Graphics
{

namespace
{

/// The type system of the text library's base stays in the process for good and cannot take a type twice: if
/// a host unloads the module and loads it again, the libraries whose types it knows have to be still there.
void KeepTextLibraries()
{
    for (const char* name : {"libpango-1.0.so.0", "libpangoft2-1.0.so.0", "libpangocairo-1.0.so.0"})
    {
        if (void* library = dlopen(name, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE))
        {
            dlclose(library);
        }
    }
}

const FcChar8* ToFc(const std::string& text)
{
    return reinterpret_cast<const FcChar8*>(text.c_str());
}

struct CDestroyPattern
{
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};

using CPattern = std::unique_ptr<FcPattern, CDestroyPattern>;

bool IsOfFamily(const FcPattern* pattern, const std::string& family)
{
    FcChar8* name = nullptr;
    for (int i = 0; FcPatternGetString(pattern, FC_FAMILY, i, &name) == FcResultMatch; ++i)
    {
        if (FcStrCmpIgnoreCase(name, ToFc(family)) == 0)
        {
            return true;
        }
    }
    return false;
}

bool IsOfBoundedSize(const std::string& path)
{
    std::error_code error;
    return std::filesystem::is_regular_file(path, error) &&
           std::filesystem::file_size(path, error) <= CLimits::maxFontBytes && !error;
}

} // namespace

CFontLibrary::CFontLibrary()
    : config(FcConfigCreate()),
      map(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT))
{
    KeepTextLibraries();
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map), config);
}

CFontLibrary::~CFontLibrary()
{
    // The map lets go of its configuration when it is given another, but not when it goes itself.
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map), nullptr);
    g_object_unref(map);
    FcConfigDestroy(config);
    if (system != nullptr)
    {
        FcConfigDestroy(system);
    }
}

bool CFontLibrary::AddFile(const std::string& path)
{
    if (files.contains(path))
    {
        return true;
    }
    if (!IsOfBoundedSize(path) || FcConfigAppFontAddFile(config, ToFc(path)) == FcFalse)
    {
        return false;
    }
    pango_fc_font_map_config_changed(PANGO_FC_FONT_MAP(map));
    files.insert(path);
    return true;
}

bool CFontLibrary::HasFamily(const std::string& family) const
{
    const FcFontSet* fonts = FcConfigGetFonts(config, FcSetApplication);
    for (int i = 0; fonts != nullptr && i < fonts->nfont; ++i)
    {
        if (IsOfFamily(fonts->fonts[i], family))
        {
            return true;
        }
    }
    return false;
}

bool CFontLibrary::AddSystemFace(const std::string& family, bool bold, bool italic)
{
    const std::string file = FindSystemFile(family, bold, italic, true);
    return !file.empty() && AddFile(file);
}

bool CFontLibrary::AddSystemDefault()
{
    const std::string file = FindSystemFile("sans-serif", false, false, false);
    return !file.empty() && AddFile(file);
}

PangoContext* CFontLibrary::CreateContext() const
{
    return pango_font_map_create_context(map);
}

std::string CFontLibrary::FindSystemFile(const std::string& family, bool bold, bool italic, bool exactly)
{
    if (system == nullptr)
    {
        system = FcInitLoadConfigAndFonts();
    }
    const CPattern wanted(FcPatternCreate());
    FcPatternAddString(wanted.get(), FC_FAMILY, ToFc(family));
    FcPatternAddInteger(wanted.get(), FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(wanted.get(), FC_SLANT, italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddBool(wanted.get(), FC_SCALABLE, FcTrue);
    FcConfigSubstitute(system, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    const CPattern found(FcFontMatch(system, wanted.get(), &result));
    FcChar8* file = nullptr;
    if (found == nullptr || (exactly && !IsOfFamily(found.get(), family)) ||
        FcPatternGetString(found.get(), FC_FILE, 0, &file) != FcResultMatch)
    {
        return {};
    }
    return reinterpret_cast<const char*>(file);
}

} // namespace Mirel::Graphics
