#pragma once

#include "SkinImages/SImage.h"

namespace SkinImages
{

// What shows and what lies behind. Each fills its frame.

/// A strip with a line at its bottom, and one with a line at its top.
void PaintHeader(cairo_t* context, const SFrame& frame);
void PaintFooter(cairo_t* context, const SFrame& frame);

/// The ground of a graph, with an edge of one pixel around it.
void PaintScreen(cairo_t* context, const SFrame& frame);

/// The ground of a text that stands on a graph: dims what runs behind it.
void PaintPlate(cairo_t* context, const SFrame& frame);

void PaintDivider(cairo_t* context, const SFrame& frame);

/// Dark in the first frame, fully lit in the last.
void PaintClipLamp(cairo_t* context, const SFrame& frame);
void PaintMidiLamp(cairo_t* context, const SFrame& frame);

} // namespace SkinImages
