#pragma once

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/CWidget.h"
#include "Mirel/GUI/Popups/CHostTooltips.h"
#include "Mirel/Graphics/CColor.h"
#include "Mirel/Graphics/CFontDescription.h"
#include "Mirel/Layout/CTableLayoutCell.h"
#include "Mirel/SkinEngine/UI/CSkinVisibility.h"

#include <optional>
#include <string>

namespace Mirel::SkinEngine
{

/// Where an element of a skin stands, and what it inherits. Nothing is owned.
struct SUIScope
{
    std::string element; ///< The name of the one that this is the inside of.
    bool lightMode = true;
    GUI::CLightWidget* light = nullptr;  ///< The parent of light widgets; null for none.
    GUI::CWidget* native = nullptr;      ///< The parent of native-hosted ones.
    GUI::CHostTooltips* tips = nullptr;  ///< Of the host of the light widgets; null for none.
    GUI::CLightWidget* widget = nullptr; ///< That this is the inside of; null for a cell.
    Layout::CBaseGroupLayoutCell* group = nullptr;
    Layout::CTableLayoutCell* table = nullptr; ///< The same, directly inside of a table, that is in no row.
    Layout::CTableLayoutCell::CRow* row = nullptr; ///< Directly inside of which; null for none.
    CSkinVisibility* visibility = nullptr;
    Graphics::CColor textColor;
    std::optional<Graphics::CColor> backgroundColor;
    Graphics::CFontDescription font;
};

} // namespace Mirel::SkinEngine
