#pragma once

#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/IAAXHost.h"
#include "Host/CRecordingCollection.h"

namespace Host
{

/// The host that a module sees: it makes collections that keep what they are told.
class CRecordingHost : public TACFObject<IAAXHost>
{
public:
    std::int32_t CreateCollection(IAAXCollection** out) override;

    /// All that modules have asked for, oldest first. Owned by the host.
    const std::vector<TACFReference<CRecordingCollection>>& GetCollections() const
    {
        return collections.GetAll();
    }

private:
    TMadeObjects<CRecordingCollection> collections;
};

} // namespace Host
