#pragma once

#include "AAXPlugin/Interface/IACFUnknown.h"

#include <cstdint>

/// What a skin author's host and tests ask of an open editor beyond what every host does. An addition of
/// ours; an editor object of this plug-in answers to it. GUI thread only. Failed while no editor is open, and
/// for a null argument.
class IEditorTools : public IACFUnknown
{
public:
    /// Readable whenever the editor has something to do: for poll and its kin, in the place of calling
    /// TimerWakeup on a clock. Owned by the editor, gone with it.
    virtual std::int32_t GetDescriptor(int* descriptor) = 0;

    /// The view has another size in pixels of the screen now; the editor lays its content out in it.
    virtual std::int32_t SetViewSize(std::int32_t width, std::int32_t height) = 0;

    /// Copies what the editor shows now, after painting what is due: 32 bits a pixel, blue in the lowest
    /// byte, then green, red and an alpha of 255; `stride` bytes from row to row. Rows and columns that the
    /// editor does not have are left alone.
    virtual std::int32_t CopyPicture(std::uint32_t* pixels, std::int32_t width, std::int32_t height,
                                     std::int32_t stride) = 0;

    /// Loads a skin file into the open editor, in the place of the one that is there. Failed if it cannot be
    /// loaded; the editor is empty then.
    virtual std::int32_t LoadSkin(const char* path) = 0;

    /// The messages of the last load, a line each: level ("error", "warning", "info"), a tab, file and line
    /// as far as known, a tab, the text. Lives until the next call of this object.
    virtual std::int32_t GetSkinMessages(const char** messages) = 0;

protected:
    ~IEditorTools() = default;
};
