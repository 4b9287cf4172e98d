#pragma once

#include <cstdint>

namespace Mirel::DataModel
{

/// A link's share in a cascade, which is all that one link update sets off by the changes that it makes: no
/// listener is active twice at once, so every cascade ends, but only the limits make it end in time. Each
/// link has a share as a member and asks it before every update. Each thread has its own cascades.
class CCascadeShare
{
public:
    /// One update, for as long as it lives. May outlive the share.
    class CUpdate
    {
    public:
        explicit CUpdate(CCascadeShare& share);
        CUpdate(const CUpdate&) = delete;
        CUpdate& operator=(const CUpdate&) = delete;
        ~CUpdate();

        /// Whether the update is to happen.
        bool IsAllowed() const { return allowed; }

    private:
        bool allowed;
    };

    /// Whether an update was refused on this thread since the last call: for a message to the file's author.
    static bool TakeRefusal();

private:
    std::uint64_t cascade = 0; ///< The one that the count is of.
    int updates = 0;
};

} // namespace Mirel::DataModel
