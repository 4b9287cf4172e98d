#pragma once

#include "Mirel/Audio/Plugin/COutputCapture.h"
#include "Mirel/Core/CAutoLock.h"
#include "Mirel/System/CCriticalSection.h"

#include <string>
#include <utility>

namespace Mirel::Audio::Plugin
{

/// The name of an instance's present state. Loads change it on any thread; who shows it is told, like of an
/// output, on a thread of its own. Any thread but the audio thread.
class CPresetName : public COutputCapture
{
public:
    explicit CPresetName(std::string text_) : text(std::move(text_)) {}

    std::string GetText() const
    {
        const Core::CAutoLock guard(lock);
        return text;
    }

    void SetText(const std::string& newText)
    {
        {
            const Core::CAutoLock guard(lock);
            text = newText;
        }
        MarkChanged();
    }

private:
    mutable System::CCriticalSection lock;
    std::string text;
};

} // namespace Mirel::Audio::Plugin
