#pragma once

#include "Mirel/Graphics/CBitmap.h"

namespace Mirel::Graphics
{

/// A bitmap whose pixels several bitmaps can share: they go with the last of them. A SetSize takes the bitmap
/// out of the sharing; the others keep their pixels. Sharing and releasing may happen on any thread, the rest
/// on the GUI thread.
class CSharedBitmap : public CBitmap
{
public:
    /// Empty.
    CSharedBitmap() = default;
    ~CSharedBitmap() override;

    CBitmapContext* GetContext() const override;

    /// Takes the pixels and shares them with nobody yet. Null makes the bitmap empty.
    void Attach(std::shared_ptr<CBitmapContext> context);

    /// Gives up its share of the pixels.
    void Detach();

    /// A bitmap on the same pixels, or an empty one if there are none.
    std::unique_ptr<CSharedBitmap> Share() const;

    /// The same: pixels are shared, not copied.
    std::unique_ptr<CSharedBitmap> Clone() const { return Share(); }

    /// How many bitmaps share the pixels, this one included; 0 if it is empty.
    int GetUseCount() const;

protected:
    void Replace(std::shared_ptr<CBitmapContext> context) override;

private:
    struct CBlock;

    CBlock* block = nullptr;
};

} // namespace Mirel::Graphics
