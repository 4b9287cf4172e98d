#pragma once

namespace Mirel::DataModel::Objects
{

/// The kinds of value that a parameter has, as descriptions carry them. An enumeration is an integer with a
/// converter that knows the names.
enum EValueKind : int
{
    ValueKindBoolean = 0,
    ValueKindInteger = 1,
    ValueKindReal = 2,
    ValueKindSwitch = 3, ///< Two states like a boolean; shown as a whole number.
};

/// The kind that a model file names: "boolean", "integer" or "enumeration". Any other name, or null, is a
/// real.
EValueKind ValueKindFromName(const char* name);

/// Whether values of this kind are whole numbers: all but the real. Unknown codes count as real.
bool IsWholeValueKind(int kind);

} // namespace Mirel::DataModel::Objects
