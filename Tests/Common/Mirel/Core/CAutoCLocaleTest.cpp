#include "Mirel/Core/CAutoCLocale.h"

#include "Support/CommaLocale.h"

#include <cstddef>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>

using Mirel::Core::CAutoCLocale;

namespace
{

std::string Printed(double value)
{
    char text[32];
    const int length = std::snprintf(text, sizeof(text), "%.1f", value);
    return {text, static_cast<std::size_t>(length)};
}

} // namespace

TEST(CAutoCLocale, PrintsWithAPointAndPutsTheOldLocaleBack)
{
    const Tests::CCommaLocale comma;
    ASSERT_EQ(Printed(1.5), "1,5");
    {
        const CAutoCLocale locale;
        EXPECT_EQ(Printed(1.5), "1.5");
        {
            const CAutoCLocale nested;
            EXPECT_EQ(Printed(1.5), "1.5");
        }
        EXPECT_EQ(Printed(1.5), "1.5");
    }
    EXPECT_EQ(Printed(1.5), "1,5");
}
