#pragma once

#include "Mirel/Core/Geometry.h"

#include <cstdint>
#include <functional>
#include <string>

namespace Mirel::Audio::Plugin
{

/// Where an editor opens.
struct SEditorPlace
{
    std::uintptr_t parentWindow = 0; ///< The window system's name of the window to fill; 0 for no screen.
    int scale = 0;                   ///< Without a screen: device pixels per pixel of the skin, 1 to 4.

    /// What moves the input parameter of that index was right-clicked: a host may have a menu for it. Called
    /// from Pump while the editor is open; empty for nobody.
    std::function<void(int input)> onInputRightClick{};
};

/// The editor of an instance, as a host shell sees it. GUI thread only, always the same one; the instance's
/// audio runs on regardless. Sizes are device pixels.
class IAudioPluginEditor
{
public:
    /// Opens hidden, with the skin that applies. False if there is no place to open in; an editor without a
    /// skin is open all the same. Closes first what is open.
    virtual bool Open(const SEditorPlace& place) = 0;
    virtual void Show() = 0;

    /// Nothing happens unless it is open.
    virtual void Close() = 0;

    /// 0 by 0 while closed.
    virtual Core::CSize GetSize() const = 0;

    /// The place has another size now: the skin's content is laid out anew in it. No event is fired.
    virtual void SetSize(Core::CSize size) = 0;

    /// Readable whenever the editor has something to do; -1 while closed.
    virtual int GetDescriptor() const = 0;

    /// Does what is to be done now: events, timers, painting. Never waits.
    virtual void Pump() = 0;

    /// Puts another skin into the open editor. False if it cannot be loaded.
    virtual bool LoadSkin(const char* path) = 0;

    /// What the last load of a skin had to say, a line a message: level, file and line, text, with tabs
    /// between.
    virtual std::string GetSkinMessages() const = 0;

    /// Copies the editor's pixels after painting what is due: blue in the lowest byte, alpha 255. False while
    /// closed.
    virtual bool CopyPicture(std::uint32_t* pixels, Core::CSize size, int strideBytes) = 0;

    virtual ~IAudioPluginEditor() = default;
};

} // namespace Mirel::Audio::Plugin
