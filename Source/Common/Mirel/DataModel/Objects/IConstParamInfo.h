#pragma once

#include "Mirel/DataModel/IConstObjectInfo.h"
#include "Mirel/DataModel/Objects/IParamValueToText.h"

namespace Mirel::DataModel::Objects
{

/// The description of a parameter: its kind of value, its range and how a value becomes text.
class IConstParamInfo : public virtual IConstObjectInfo
{
public:
    /// The kind of value, an EValueKind.
    virtual int GetType() const = 0;

    /// The unit's text, or null; valid until the next change of the unit.
    virtual const char* GetUnit() const = 0;

    /// The converter of the description; valid until the next change of the description.
    virtual const IParamValueToText& GetValueToText() const = 0;

    virtual float GetMin() const = 0;
    virtual float GetDefault() const = 0;
    virtual float GetMax() const = 0;
};

} // namespace Mirel::DataModel::Objects
