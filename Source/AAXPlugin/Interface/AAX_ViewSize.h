#pragma once

/// The size of an editor's view in pixels of the screen.
struct SAAXViewSize
{
    float height = 0.0F;
    float width = 0.0F;
};
