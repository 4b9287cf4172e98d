#pragma once

#include "Mirel/DataModel/Objects/IConstParamInfo.h"

namespace Mirel::DataModel::Objects
{

/// A parameter's description that can be changed. Type and numbers fire on a change only, and NaN is none;
/// texts, the converter and CopyFrom always fire, once each. Texts are copied, null stays null.
class IParamInfo : public virtual IConstParamInfo
{
public:
    virtual void SetType(int type) = 0;
    virtual void SetName(const char* name) = 0;
    virtual void SetUnit(const char* unit) = 0;
    virtual void SetComment(const char* comment) = 0;
    virtual void SetMin(float min) = 0;
    virtual void SetDefault(float defaultValue) = 0;
    virtual void SetMax(float max) = 0;

    /// With owned the description destroys the converter in the end; otherwise the converter must outlive its
    /// use here. Null brings back the plain converter of the type.
    virtual void SetValueToText(IParamValueToText* valueToText, bool owned) = 0;

    /// Takes over everything, with a clone of the other's converter.
    virtual void CopyFrom(const IConstParamInfo& other) = 0;
};

} // namespace Mirel::DataModel::Objects
