#pragma once

#include <clocale>
#include <locale.h>

namespace Mirel::Core
{

/// While it lives, numbers of the calling thread are read and printed in the "C" locale, with a point. Only
/// this thread is switched: a host's other threads keep what they have.
class CAutoCLocale
{
public:
    CAutoCLocale() : previous(uselocale(Shared())) {}
    CAutoCLocale(const CAutoCLocale&) = delete;
    CAutoCLocale& operator=(const CAutoCLocale&) = delete;
    ~CAutoCLocale() { uselocale(previous); }

private:
    /// Made once for the process and kept to its end.
    static locale_t Shared()
    {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", locale_t());
        return locale;
    }

    locale_t previous;
};

} // namespace Mirel::Core
