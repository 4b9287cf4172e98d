// A loadable module that knows functions by their interface and key alone, as a plug-in that reads a saved
// state does. FunctionsRegistrationTest loads it.

#include "Mirel/Math/IFunction.h"
#include "Mirel/Runtime/CObjectsFactory.h"

#include <memory>

/// The value at x of the function of that class key; -1 if the module has no such class.
extern "C" [[gnu::visibility("default")]] float EvaluateFunctionOfKey(const char* classKey, float x)
{
    using Mirel::Math::IFunction;
    const auto& factory = Mirel::Runtime::CObjectsFactory::Instance();
    const std::unique_ptr<IFunction> function(
        static_cast<IFunction*>(factory.Create(classKey, IFunction::classKey)));
    return function == nullptr ? -1.0f : (*function)(x);
}
