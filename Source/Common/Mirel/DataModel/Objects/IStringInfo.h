#pragma once

#include "Mirel/DataModel/Objects/IConstStringInfo.h"

namespace Mirel::DataModel::Objects
{

/// A string object's description that can be changed. Texts are copied, null stays null; every setter fires.
class IStringInfo : public virtual IConstStringInfo
{
public:
    virtual void SetName(const char* name) = 0;
    virtual void SetComment(const char* comment) = 0;
    virtual void SetDefault(const char* text) = 0;

    /// Takes over everything and fires once.
    virtual void CopyFrom(const IConstStringInfo& other) = 0;
};

} // namespace Mirel::DataModel::Objects
