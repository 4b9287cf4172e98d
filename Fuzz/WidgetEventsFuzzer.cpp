// Input events and changes of the widget tree in any order, handlers that change and destroy widgets: input
// always belongs to widgets that live in the tree, and what was repainted in pieces is the whole picture.

#include "Common/Mirel/GUI/CWidgetMonkey.h"
#include "Require.h"

#include <cstddef>
#include <cstdint>

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    std::size_t used = 0;
    Tests::CWidgetMonkey monkey([&] { return used < size ? bytes[used++] : std::uint8_t{0}; });
    while (used < size)
    {
        Fuzz::Require(monkey.Step());
    }
    Fuzz::Require(monkey.CheckPicture());
    return 0;
}
