#pragma once

#include "Mirel/Graphics/CBitmap.h"

namespace Mirel::Graphics
{

/// A bitmap on a pixel memory of somebody else, which must outlive the attachment. A SetSize leaves that
/// memory alone and goes on with one of the adapter's own.
class CBitmapAdapter : public CBitmap
{
public:
    CBitmapAdapter() = default;
    explicit CBitmapAdapter(CBitmapContext* context_) : context(context_) {}

    CBitmapContext* GetContext() const override { return context; }

    /// Null makes the bitmap empty.
    void Attach(CBitmapContext* newContext);
    void Detach() { Attach(nullptr); }

protected:
    void Replace(std::shared_ptr<CBitmapContext> newContext) override;

private:
    CBitmapContext* context = nullptr;
    std::shared_ptr<CBitmapContext> resized; ///< Memory of its own after a SetSize.
};

} // namespace Mirel::Graphics
