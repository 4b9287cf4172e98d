// In a program of its own, which is not linked to the text libraries: so they go when the module goes.

#include "Support/DataFolder.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <string>

TEST(TextModule, DrawsAgainAfterItWasUnloaded)
{
    const std::string fonts = Tests::GetDataFolder() + "/Fonts";
    int widths[] = {0, 0, 0};
    for (int& width : widths)
    {
        void* module = dlopen(TEXT_MODULE, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(module, nullptr) << dlerror();
        const auto draw = reinterpret_cast<int (*)(const char*)>(dlsym(module, "DrawLabel"));
        ASSERT_NE(draw, nullptr);
        width = draw(fonts.c_str());
        EXPECT_EQ(dlclose(module), 0);
    }
    EXPECT_GT(widths[0], 20);
    EXPECT_EQ(widths[1], widths[0]);
    EXPECT_EQ(widths[2], widths[0]);
}
