#pragma once

#include "SkinCheck/CheckSkin.h"

namespace SkinCheck
{

/// Builds the widgets of a skin without a screen, on the objects of the plug-in and of the model file.
void BuildSkin(const SCheckOptions& options, SCheckResult& result);

} // namespace SkinCheck
