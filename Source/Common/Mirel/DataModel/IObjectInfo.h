#pragma once

#include "Mirel/DataModel/IConstObjectInfo.h"

namespace Mirel::DataModel
{

/// A description that can be changed. Texts are copied, null stays null, and setting one always fires.
class IObjectInfo : public virtual IConstObjectInfo
{
public:
    virtual void SetName(const char* name) = 0;
    virtual void SetComment(const char* comment) = 0;

    /// Takes over all texts and fires once.
    virtual void CopyFrom(const IConstObjectInfo& other) = 0;
};

} // namespace Mirel::DataModel
