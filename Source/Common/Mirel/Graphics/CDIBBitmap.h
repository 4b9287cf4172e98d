#pragma once

#include "Mirel/Graphics/CSharedBitmap.h"

namespace Mirel::Graphics
{

/// A bitmap with memory of its own, in a depth that stays what it was made with.
class CDIBBitmap : public CSharedBitmap
{
public:
    /// depth_ is 8, 16, 24 or 32; with another the bitmap stays empty. So it does with a side below 1.
    explicit CDIBBitmap(int depth_, CSize size = CSize());

    int GetDepth() const override { return depth; }

private:
    int depth;
};

/// Pixels to draw once and put on surfaces often.
class CLayer : public CDIBBitmap
{
public:
    explicit CLayer(CSize size) : CDIBBitmap(32, size) {}
};

} // namespace Mirel::Graphics
