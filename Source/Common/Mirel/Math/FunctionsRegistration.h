#pragma once

namespace Mirel::Math
{

/// Enters every class of functions that has a class key into the objects factory: as itself, and as the
/// interface that it is created as. The first call does it; static initialisation makes that call.
bool RegisterFunctions();

/// Functions are known to readers by key alone. So whoever knows the interface of functions brings their
/// classes into the program: this reference makes the linker take them out of the static library.
inline const bool functionsAreRegistered = RegisterFunctions();

} // namespace Mirel::Math
