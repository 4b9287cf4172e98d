#pragma once

namespace SkinCheck
{

class CCheckReport;

/// Reports what a formula can stand for, which names of the model it uses, and its value at x and y where
/// those names are 0. Warns of what is passed over in silence when a skin is loaded.
void CheckFormula(const char* text, float x, float y, CCheckReport& report);

} // namespace SkinCheck
