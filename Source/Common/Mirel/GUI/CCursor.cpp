#include "Mirel/GUI/CCursor.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Mirel::GUI
{

CSharedCursor CCursor::FindSystem(std::string_view name)
{
    using Entry = std::pair<std::string_view, ECursorShape>;
    static constexpr std::array names = {
        Entry("normal", ECursorShape::Normal),
        Entry("hand", ECursorShape::Hand),
        Entry("cross", ECursorShape::Cross),
        Entry("size", ECursorShape::Size),
        Entry("size_h", ECursorShape::SizeHorizontal),
        Entry("size_v", ECursorShape::SizeVertical),
        Entry("size_up_left", ECursorShape::SizeUpLeft),
        Entry("size_up_right", ECursorShape::SizeUpRight),
        Entry("wait", ECursorShape::Wait),
        Entry("no", ECursorShape::No),
        Entry("Ibeam", ECursorShape::IBeam),
        Entry("working", ECursorShape::Working),
        Entry("up", ECursorShape::Up),
        Entry("open_hand", ECursorShape::OpenHand),
    };
    const auto* found =
        std::find_if(names.begin(), names.end(), [name](const Entry& entry) { return entry.first == name; });
    return found == names.end() ? nullptr : std::make_shared<const CCursor>(found->second);
}

} // namespace Mirel::GUI
