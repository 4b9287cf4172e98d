#pragma once

#include "AAXPlugin/Interface/AAX_ViewSize.h"
#include "AAXPlugin/Interface/IACFUnknown.h"

#include <cstdint>

/// What a native view is.
namespace AAXViewType
{

inline constexpr std::int32_t None = 0;

/// An X11 window, by its identifier.
inline constexpr std::int32_t X11Window = 1;

/// No screen: the editor paints into memory, from where IEditorTools fetches it. An addition of ours. The
/// view is the number of device pixels per pixel of the skin, 1 to 4.
inline constexpr std::int32_t Offscreen = 2;

} // namespace AAXViewType

/// The place on the screen that an instance's editor fills. The host's object. GUI thread only.
class IAAXViewContainer : public IACFUnknown
{
public:
    /// One of AAXViewType.
    virtual std::int32_t GetType(std::int32_t* type) = 0;

    /// The native view, as its type has it; 0 while there is none.
    virtual std::int32_t GetView(std::uintptr_t* view) = 0;

    /// The editor needs another size from now on.
    virtual std::int32_t SetViewSize(const SAAXViewSize* size) = 0;

    /// What moves the parameter was right-clicked in the editor: the host may open a menu of its own under
    /// the pointer. Unsupported if it does nothing; the editor does nothing either way.
    virtual std::int32_t HandleParameterRightClick(const char* parameterId) = 0;

protected:
    ~IAAXViewContainer() = default;
};
