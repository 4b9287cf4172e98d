#pragma once

#include "Mirel/Audio/Plugin/COutputCapture.h"
#include "Mirel/System/CCriticalSection.h"

#include <array>
#include <cstddef>
#include <string>

namespace Mirel::Audio::Plugin
{

/// The last published text of an output string, in a buffer of fixed size, so that publishing allocates
/// nothing.
class CStringCapture : public COutputCapture
{
public:
    /// In bytes. Longer texts, which a status line cannot show anyway, lose what is too much, by whole
    /// characters.
    static constexpr std::size_t maxLength = 255;

    /// Null is an empty text. The lock must outlive this object.
    CStringCapture(System::CCriticalSection& lock_, const char* text_);

    /// Any thread but the audio thread; may wait for a publication.
    std::string GetText() const;

    /// Audio thread, which holds the lock.
    void Publish(const char* newText);

private:
    void Store(const char* newText);

    System::CCriticalSection& lock;
    std::array<char, maxLength + 1> text{};
};

} // namespace Mirel::Audio::Plugin
