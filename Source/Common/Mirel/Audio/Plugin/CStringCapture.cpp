#include "Mirel/Audio/Plugin/CStringCapture.h"

#include "Mirel/Core/CAutoLock.h"
#include "Mirel/DataModel/Objects/PatternExpansion.h"

#include <algorithm>
#include <cstring>

namespace Mirel::Audio::Plugin
{

CStringCapture::CStringCapture(System::CCriticalSection& lock_, const char* text_) : lock(lock_)
{
    Store(text_);
}

std::string CStringCapture::GetText() const
{
    const Core::CAutoLock guard(lock);
    return text.data();
}

void CStringCapture::Publish(const char* newText)
{
    Store(newText);
    MarkChanged();
}

void CStringCapture::Store(const char* newText)
{
    // No further than it takes to know that a text is too long.
    const std::size_t shown = newText == nullptr ? 0 : strnlen(newText, maxLength + 1);
    const std::size_t length = DataModel::Objects::LengthInWholeCharacters({newText, shown}, maxLength);
    std::copy_n(newText, length, text.begin());
    text[length] = '\0';
}

} // namespace Mirel::Audio::Plugin
