#pragma once

#include <locale.h>

namespace Tests
{

/// While it lives, the calling thread prints and reads numbers with a comma, as many users' systems do.
/// Brings its own locale, so that no machine needs one installed.
class CCommaLocale
{
public:
    CCommaLocale();
    CCommaLocale(const CCommaLocale&) = delete;
    CCommaLocale& operator=(const CCommaLocale&) = delete;
    ~CCommaLocale();

private:
    locale_t locale;
    locale_t previous;
};

} // namespace Tests
