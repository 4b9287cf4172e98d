#pragma once

#include "Host/WidgetGallery/CGalleryPage.h"

namespace WidgetGallery
{

/// Images, graphics, texts, opacity and buffering.
void AddLightSection(CGalleryPage& page);

} // namespace WidgetGallery
