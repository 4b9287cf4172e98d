#include "Host/Live/CEditorWindow.h"

namespace Host
{

using Mirel::GUI::CSize;

CEditorWindow::CEditorWindow(Mirel::GUI::INativePlatform& platform_, CHostEditor& editor_)
    : platform(platform_),
      editor(editor_)
{
}

CEditorWindow::~CEditorWindow()
{
    editor.SetSizeListener(nullptr);
    editor.SetParameterMenu(nullptr);
}

bool CEditorWindow::Open(const std::string& title, std::string& error)
{
    Mirel::GUI::SNativeWindowOptions options;
    options.title = title;
    window = platform.CreateNativeWindow(options, *this);
    if (window == nullptr)
    {
        error = "the display gives no window";
        return false;
    }
    if (!editor.OpenInWindow(window->GetId(), error))
    {
        return false;
    }
    editor.SetSizeListener([this](int width, int height) { window->SetSize({width, height}); });
    editor.SetParameterMenu([this](const char* parameterId)
                            { return onRightClick && onRightClick(parameterId, *window); });
    const SAAXViewSize size = editor.GetSize();
    window->SetSize({static_cast<int>(size.width), static_cast<int>(size.height)});
    window->Show(true);
    return true;
}

void CEditorWindow::SetSize(int width, int height)
{
    window->SetSize({width, height});
}

void CEditorWindow::OnResized(CSize size)
{
    const SAAXViewSize shown = editor.GetSize();
    if (size.width != static_cast<int>(shown.width) || size.height != static_cast<int>(shown.height))
    {
        editor.SetSize(size.width, size.height);
    }
}

bool CEditorWindow::OnKeyDown(const Mirel::GUI::SNativeKeyEvent& event)
{
    const bool isSpace = event.character == U' ' && onSpace;
    if (isSpace && !event.repeat)
    {
        onSpace();
    }
    return isSpace;
}

} // namespace Host
