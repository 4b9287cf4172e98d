#include "Mirel/Graphics/CSharedBitmap.h"

#include "Mirel/Core/CAutoLock.h"
#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/System/CCriticalSection.h"

#include <utility>

namespace Mirel::Graphics
{

struct CSharedBitmap::CBlock
{
    explicit CBlock(std::shared_ptr<CBitmapContext> context_) : context(std::move(context_)) {}

    void Retain()
    {
        const Core::CAutoLock hold(lock);
        ++useCount;
    }

    /// True for the last user, who destroys the block.
    bool Release()
    {
        const Core::CAutoLock hold(lock);
        return --useCount == 0;
    }

    int GetUseCount()
    {
        const Core::CAutoLock hold(lock);
        return useCount;
    }

    const std::shared_ptr<CBitmapContext> context;

private:
    System::CCriticalSection lock;
    int useCount = 1;
};

CSharedBitmap::~CSharedBitmap()
{
    Detach();
}

CBitmapContext* CSharedBitmap::GetContext() const
{
    return block == nullptr ? nullptr : block->context.get();
}

void CSharedBitmap::Attach(std::shared_ptr<CBitmapContext> context)
{
    Detach();
    if (context != nullptr)
    {
        block = new CBlock(std::move(context));
    }
}

void CSharedBitmap::Detach()
{
    CBlock* old = std::exchange(block, nullptr);
    if (old != nullptr && old->Release())
    {
        delete old;
    }
}

std::unique_ptr<CSharedBitmap> CSharedBitmap::Share() const
{
    auto other = std::make_unique<CSharedBitmap>();
    if (block != nullptr)
    {
        block->Retain();
        other->block = block;
    }
    return other;
}

int CSharedBitmap::GetUseCount() const
{
    return block == nullptr ? 0 : block->GetUseCount();
}

void CSharedBitmap::Replace(std::shared_ptr<CBitmapContext> context)
{
    Attach(std::move(context));
}

} // namespace Mirel::Graphics
