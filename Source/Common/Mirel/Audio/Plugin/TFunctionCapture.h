#pragma once

#include "Mirel/Audio/Plugin/COutputCapture.h"
#include "Mirel/Core/CAutoLock.h"
#include "Mirel/System/CCriticalSection.h"

#include <memory>
#include <utility>

namespace Mirel::Audio::Plugin
{

/// The last published state of an output curve or surface: what its readers see is a deep copy of the
/// filter's function, as of the publication. F is the function's interface.
///
/// A publication brings the copy of the one before up to date with what was written since, while readers are
/// locked out. That neither allocates nor frees, provided that Prepare was called since the filter's Init and
/// that the function has an UpdateClone of its own. A function without one is cloned anew each time, and what
/// the clone replaces is freed by the next reader, or by the next publication if no reader comes by.
template <class F>
class TFunctionCapture : public COutputCapture
{
public:
    /// The lock must outlive this object.
    explicit TFunctionCapture(System::CCriticalSection& lock_) : lock(lock_) {}

    /// Calls action(const F&) with the lock held. False before the first publication. Any thread but the
    /// audio thread; may wait for a publication. While the action runs nothing is published, so it should be
    /// short: evaluate what is on the screen, or use UpdateCopy.
    template <class Action>
    bool Read(Action action) const
    {
        std::unique_ptr<F> waste; // freed once the lock is free again
        const Core::CAutoLock guard(lock);
        waste = std::move(replaced);
        if (current == nullptr)
        {
            return false;
        }
        action(std::as_const(*current));
        return true;
    }

    /// Brings a reader's own copy up to date, or makes it, if it is null or of another kind. Takes the lock
    /// only for as long as it takes to copy what was published since. Otherwise like Read.
    bool UpdateCopy(std::unique_ptr<F>& copy) const
    {
        return Read(
            [&copy](const F& function)
            {
                if (copy == nullptr || !function.UpdateClone(*copy))
                {
                    copy.reset(function.Clone());
                }
            });
    }

    /// Lays a copy of the size of `live` ready, for a filter that was just initialised. Readers see what was
    /// published before until the next publication. No audio may run; not the audio thread.
    void Prepare(const F& live)
    {
        std::unique_ptr<F> next(live.Clone());
        if (!live.UpdateClone(*next))
        {
            next.reset();
        }
        std::unique_ptr<F> waste;
        const Core::CAutoLock guard(lock);
        waste = std::move(replaced);
        spare.swap(next);
    }

    /// Audio thread, which holds the lock.
    void Publish(const F& live)
    {
        if (spare != nullptr && live.UpdateClone(*spare))
        {
            Replace(std::move(spare));
        }
        else if (current == nullptr || !live.UpdateClone(*current))
        {
            Replace(std::unique_ptr<F>(live.Clone()));
        }
        MarkChanged();
    }

private:
    void Replace(std::unique_ptr<F> next) { replaced = std::exchange(current, std::move(next)); }

    System::CCriticalSection& lock;
    std::unique_ptr<F> current; ///< Null before the first publication.
    std::unique_ptr<F> spare;   ///< The one to publish next, if its size fits.
    /// What readers saw before; they, who may take the time, free it.
    mutable std::unique_ptr<F> replaced;
};

} // namespace Mirel::Audio::Plugin
