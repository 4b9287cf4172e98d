#include "Mirel/Graphics/CBitmapAdapter.h"

#include "Mirel/Graphics/CBitmapContext.h"

#include <utility>

namespace Mirel::Graphics
{

void CBitmapAdapter::Attach(CBitmapContext* newContext)
{
    if (newContext != context)
    {
        resized.reset();
        context = newContext;
    }
}

void CBitmapAdapter::Replace(std::shared_ptr<CBitmapContext> newContext)
{
    resized = std::move(newContext);
    context = resized.get();
}

} // namespace Mirel::Graphics
