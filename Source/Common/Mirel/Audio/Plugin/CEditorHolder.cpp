#include "Mirel/Audio/Plugin/CEditorHolder.h"

namespace Mirel::Audio::Plugin
{

bool CEditorHolder::Open(const SEditorPlace& place)
{
    Close();
    editor = factory ? factory() : nullptr;
    if (editor != nullptr && !editor->Open(place))
    {
        editor.reset();
    }
    return editor != nullptr;
}

void CEditorHolder::Show()
{
    if (editor != nullptr)
    {
        editor->Show();
    }
}

void CEditorHolder::Close()
{
    if (editor != nullptr)
    {
        editor->Close();
        editor.reset();
    }
}

Core::CSize CEditorHolder::GetSize() const
{
    return editor != nullptr ? editor->GetSize() : Core::CSize{};
}

} // namespace Mirel::Audio::Plugin
