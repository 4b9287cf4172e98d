#pragma once

#include "Mirel/DataModel/IConstObjectInfo.h"

namespace Mirel::DataModel::Objects
{

/// The description of a string object.
class IConstStringInfo : public virtual IConstObjectInfo
{
public:
    /// The text that the object begins with, or null; valid until the next change of it.
    virtual const char* GetDefault() const = 0;
};

} // namespace Mirel::DataModel::Objects
