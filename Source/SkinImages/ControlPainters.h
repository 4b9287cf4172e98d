#pragma once

#include "SkinImages/SImage.h"

namespace SkinImages
{

// What a user acts on. Each fills its frame.

void PaintButton(cairo_t* context, const SFrame& frame);

/// A button that shows a text as a field does.
void PaintFieldButton(cairo_t* context, const SFrame& frame);

/// A button with an arrow at its right: it opens a list.
void PaintChoice(cairo_t* context, const SFrame& frame);

/// Frames: off, on.
void PaintSwitch(cairo_t* context, const SFrame& frame);

/// Frames: a rising and a falling edge.
void PaintDirection(cairo_t* context, const SFrame& frame);

/// Frames: in the signal, bypassed.
void PaintBypass(cairo_t* context, const SFrame& frame);

/// Three quarters of a turn from the first frame to the last, beginning at the lower left.
void PaintKnob(cairo_t* context, const SFrame& frame);

void PaintSliderTrack(cairo_t* context, const SFrame& frame);
void PaintSliderThumb(cairo_t* context, const SFrame& frame);

/// Points to the left, its tip at the middle of its height.
void PaintMarker(cairo_t* context, const SFrame& frame);

} // namespace SkinImages
