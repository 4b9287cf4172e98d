#pragma once

#include "Mirel/Math/IFunction.h"

namespace Mirel::DataModel::Objects
{

/// A response curve and the curve that undoes it. Both last as long as the process.
struct SResponsePair
{
    const Math::IFunction* function; ///< Never null.
    const Math::IFunction* inverse;  ///< Never null.
};

/// One of the curves that links and controllers offer.
struct SResponseCurve
{
    int code;                        ///< The number in settings.
    const char* modelName;           ///< The name in model files, or null where it cannot be chosen there.
    const char* display;             ///< The text of the setting.
    const char* speed;               ///< The text where the curve is shown as a speed.
    const Math::IFunction* function; ///< Never null; lasts as long as the process.
};

constexpr int responseCurveCount = 13;
constexpr int linearResponseCurve = 6;

/// Null for a code without a curve. Any thread, here and below.
const SResponseCurve* GetResponseCurve(int code);

/// The curve of the code and, as its inverse, that of the mirrored code. Log0, Linear and Exp0 are straight
/// lines, and a code without a curve gives a straight line as well.
SResponsePair GetResponsePair(int code);

/// The code that a model file names; linear for null and for any text that names none.
int ResponseCodeFromModelName(const char* name);

/// The code that a setting names by its display text; false, with the code left alone, for null and for a
/// text that names none.
bool ResponseCodeFromDisplay(const char* display, int& code);

} // namespace Mirel::DataModel::Objects
