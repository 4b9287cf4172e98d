#include "Support/CommaLocale.h"

#include "Support/Environment.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace
{

/// A numeric locale category as the C library stores it: comma, grouping by thousands with a point, UTF-8.
constexpr std::array<unsigned char, 54> numericCategory = {
    0x14, 0x11, 0x03, 0x20,                                             // kind
    6,    0,    0,    0,                                                // six fields, at these offsets
    0x20, 0,    0,    0,    0x22, 0, 0, 0, 0x24, 0, 0, 0,               //
    0x28, 0,    0,    0,    0x2c, 0, 0, 0, 0x30, 0, 0, 0,               //
    ',',  0,    '.',  0,    3,    3, 0, 0, ',',  0, 0, 0, '.', 0, 0, 0, //
    'U',  'T',  'F',  '-',  '8',  0};

locale_t LoadCommaLocale()
{
    std::string folder = (std::filesystem::temp_directory_path() / "comma-locale-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr)
    {
        return locale_t();
    }
    std::filesystem::create_directory(folder + "/comma");
    std::ofstream(folder + "/comma/LC_NUMERIC", std::ios::binary)
        .write(reinterpret_cast<const char*>(numericCategory.data()), numericCategory.size());
    const Tests::CEnvironmentVariable path("LOCPATH", folder.c_str());
#ifdef __SANITIZE_ADDRESS__
    const __lsan::ScopedDisabler disabler; // newlocale leaks its copy of the search path
#endif
    const locale_t locale = newlocale(LC_NUMERIC_MASK, "comma", locale_t());
    std::filesystem::remove_all(folder);
    return locale;
}

} // namespace

namespace Tests
{

CCommaLocale::CCommaLocale() : locale(LoadCommaLocale()), previous(uselocale(locale))
{
    if (locale == locale_t())
    {
        (void)std::fputs("the comma locale could not be loaded\n", stderr);
        std::abort();
    }
}

CCommaLocale::~CCommaLocale()
{
    uselocale(previous);
    freelocale(locale);
}

} // namespace Tests
