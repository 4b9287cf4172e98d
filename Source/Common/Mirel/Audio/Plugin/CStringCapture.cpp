#include "Mirel/Audio/Plugin/CStringCapture.h"

#include "Mirel/Core/CAutoLock.h"

#include <algorithm>
#include <cstring>

namespace Mirel::Audio::Plugin
{

namespace
{

/// Whether the byte goes on with a UTF-8 character that began before it.
bool IsContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

std::size_t LengthThatFits(const char* text)
{
    const std::size_t length = strnlen(text, CStringCapture::maxLength + 1);
    if (length <= CStringCapture::maxLength)
    {
        return length;
    }
    std::size_t fitting = CStringCapture::maxLength;
    while (fitting > 0 && IsContinuation(text[fitting]))
    {
        --fitting;
    }
    return fitting;
}

} // namespace

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
    const std::size_t length = newText == nullptr ? 0 : LengthThatFits(newText);
    std::copy_n(newText, length, text.begin());
    text[length] = '\0';
}

} // namespace Mirel::Audio::Plugin
