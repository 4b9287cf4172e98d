#pragma once

#include "Mirel/Audio/Plugin/IAudioPluginEditor.h"
#include "Mirel/Core/CEventProvider.h"

#include <functional>
#include <memory>

namespace Mirel::Audio::Plugin
{

/// The place of an instance for its editor, which is there only while it is open. GUI thread only, but for
/// SetFactory.
class CEditorHolder
{
public:
    /// Makes an editor. It may call NotifyResized for as long as it lives.
    using Factory = std::function<std::unique_ptr<IAudioPluginEditor>()>;

    /// Before the first Open. Without a factory nothing opens.
    void SetFactory(Factory factory_) { factory = std::move(factory_); }

    /// False if no editor opens there; then there is none.
    bool Open(const SEditorPlace& place);
    void Show();

    /// Destroys the editor.
    void Close();

    /// 0 by 0 without an editor.
    Core::CSize GetSize() const;

    /// Fired when the editor's size changed.
    Core::IEventProvider& GetResizedEvent() { return resized; }
    void NotifyResized() { resized.Notify(); }

    /// Null while none is open.
    IAudioPluginEditor* Get() { return editor.get(); }

private:
    Factory factory;
    Core::CEventProvider resized;
    std::unique_ptr<IAudioPluginEditor> editor;
};

} // namespace Mirel::Audio::Plugin
