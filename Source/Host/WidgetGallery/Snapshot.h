#pragma once

#include "Mirel/GUI/Popups/CPopupLook.h"

#include <string>

namespace WidgetGallery
{

/// Writes the whole gallery as a PNG file, with its menus, tooltips and dialogs below. The scale is 1 to 4.
/// False if the file cannot be written.
bool WriteSnapshot(const std::string& path, int scale, const Mirel::GUI::CPopupLook& look);

} // namespace WidgetGallery
