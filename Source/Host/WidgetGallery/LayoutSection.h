#pragma once

#include "Host/WidgetGallery/CGalleryPage.h"

namespace WidgetGallery
{

/// Rows, columns, layer stacks, tables, flex weights, ratios, alignments and positions.
void AddLayoutSection(CGalleryPage& page);

} // namespace WidgetGallery
