#pragma once

#include "Mirel/Graphics/CSharedBitmap.h"

namespace Mirel::Graphics
{

/// A bitmap with memory of its own, in a depth and a device scale that stay what it was made with.
class CDIBBitmap : public CSharedBitmap
{
public:
    /// depth_ is 8, 16, 24 or 32; with another the bitmap stays empty. So it does with a side below 1. What
    /// is drawn on a surface with a device scale is as sharp as that if the bitmap has its scale.
    explicit CDIBBitmap(int depth_, CSize size = CSize(), int deviceScale_ = 1);

    int GetDepth() const override { return depth; }
    int GetDeviceScale() const override { return deviceScale; }

private:
    int depth;
    int deviceScale;
};

/// Pixels to draw once and put on surfaces often.
class CLayer : public CDIBBitmap
{
public:
    explicit CLayer(CSize size, int deviceScale_ = 1) : CDIBBitmap(32, size, deviceScale_) {}
};

} // namespace Mirel::Graphics
