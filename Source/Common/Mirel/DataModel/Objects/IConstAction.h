#pragma once

#include "Mirel/Core/ICapture.h"
#include "Mirel/DataModel/IConstObjectInfo.h"

namespace Mirel::DataModel::Objects
{

/// Something that a user can trigger, with its description. The action is captured while it runs. GUI thread
/// only.
class IConstAction : public virtual Core::IConstCapture
{
public:
    /// Valid as long as the action.
    virtual const IConstObjectInfo& GetInfo() const = 0;

    virtual void Execute() const = 0;
};

} // namespace Mirel::DataModel::Objects
