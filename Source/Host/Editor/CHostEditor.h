#pragma once

#include "AAXPlugin/Interface/AAX_IEffectGUI.h"
#include "AAXPlugin/Interface/IAAXViewContainer.h"
#include "AAXPlugin/Interface/IEditorTools.h"
#include "AAXPlugin/Interface/TACFReference.h"
#include "Host/Editor/CPicture.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace Host
{

class CHostInstance;

/// The editor of an instance, as its host shows it: in a window of the host, or without a screen. GUI thread
/// only. It must be gone before the instance.
class CHostEditor
{
public:
    /// Null with one line in `error` if the plug-in makes no editor.
    static std::unique_ptr<CHostEditor> Make(CHostInstance& instance, std::string& error);
    CHostEditor(const CHostEditor&) = delete;
    CHostEditor& operator=(const CHostEditor&) = delete;

    /// Closes the editor.
    ~CHostEditor();

    /// Told of each size that the plug-in asks its view to have, in pixels of the screen.
    using SizeListener = std::function<void(int width, int height)>;
    void SetSizeListener(SizeListener listener);

    /// Asked to open a menu for the parameter of that identifier, which was right-clicked, under the pointer.
    /// False if there is none.
    using ParameterMenu = std::function<bool(const char* parameterId)>;
    void SetParameterMenu(ParameterMenu menu);

    /// Opens in the X11 window, or without a screen at so many device pixels per pixel of the skin. False
    /// with one line in `error` if nothing opened.
    bool OpenInWindow(std::uintptr_t window, std::string& error);
    bool OpenOffscreen(int scale, std::string& error);

    /// 0 by 0 while closed.
    SAAXViewSize GetSize() const;
    void SetSize(int width, int height);

    /// Readable whenever Wake has something to do; -1 while closed.
    int GetDescriptor() const;
    void Wake() { gui->TimerWakeup(); }

    /// Lets the editor do for a while whatever it has to do, as its clock asks.
    void WakeFor(int milliseconds);

    bool LoadSkin(const std::string& path);
    std::string GetSkinMessages() const;

    /// What the editor shows; empty while closed.
    CPicture TakePicture() const;

private:
    class CView;

    CHostEditor();
    bool Open(std::int32_t type, std::uintptr_t view, std::string& error);

    TACFReference<AAX_IEffectGUI> gui;
    TACFReference<IEditorTools> tools;
    TACFReference<CView> container;
};

} // namespace Host
