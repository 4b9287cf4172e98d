#include "Mirel/DataModel/Objects/CParamInfo.h"

#include "Mirel/DataModel/Objects/CParamValueToText.h"
#include "Mirel/DataModel/Objects/EValueKind.h"

namespace Mirel::DataModel::Objects
{

CParamInfo::CParamInfo() : CParamInfo(ValueKindReal, 0.0F, 0.0F, 0.0F, "", "", "") {}

CParamInfo::CParamInfo(int type_, float min_, float max_, float defaultValue_, const char* name_,
                       const char* unit_, const char* comment_, IParamValueToText* valueToText_, bool owned_)
    : type(type_),
      name(name_),
      unit(unit_),
      comment(comment_),
      min(min_),
      max(max_),
      defaultValue(defaultValue_)
{
    HoldValueToText(valueToText_, owned_);
}

CParamInfo::CParamInfo(const IConstParamInfo& other)
    : CParamInfo(other.GetType(), other.GetMin(), other.GetMax(), other.GetDefault(), other.GetName(),
                 other.GetUnit(), other.GetComment(), other.GetValueToText().Clone(), true)
{
}

CParamInfo::CParamInfo(const CParamInfo& other)
    : IConstObjectInfo(),
      IConstParamInfo(),
      IParamInfo(),
      type(other.type),
      name(other.name),
      unit(other.unit),
      comment(other.comment),
      min(other.min),
      max(other.max),
      defaultValue(other.defaultValue),
      valueToText(other.valueToText->Clone(), true)
{
}

CParamInfo& CParamInfo::operator=(const CParamInfo& other)
{
    if (this != &other)
    {
        CParamInfo::CopyFrom(other);
    }
    return *this;
}

void CParamInfo::SetType(int newType)
{
    if (type != newType)
    {
        type = newType;
        changed.Notify();
    }
}

void CParamInfo::SetName(const char* newName)
{
    SetText(name, newName);
}

void CParamInfo::SetUnit(const char* newUnit)
{
    SetText(unit, newUnit);
}

void CParamInfo::SetComment(const char* newComment)
{
    SetText(comment, newComment);
}

void CParamInfo::SetMin(float newMin)
{
    SetNumber(min, newMin);
}

void CParamInfo::SetDefault(float newDefault)
{
    SetNumber(defaultValue, newDefault);
}

void CParamInfo::SetMax(float newMax)
{
    SetNumber(max, newMax);
}

void CParamInfo::SetValueToText(IParamValueToText* newValueToText, bool owned)
{
    HoldValueToText(newValueToText, owned);
    changed.Notify();
}

void CParamInfo::CopyFrom(const IConstParamInfo& other)
{
    comment.Assign(other.GetComment());
    defaultValue = other.GetDefault();
    max = other.GetMax();
    min = other.GetMin();
    name.Assign(other.GetName());
    type = other.GetType();
    unit.Assign(other.GetUnit());
    valueToText.Set(other.GetValueToText().Clone(), true);
    changed.Notify();
}

void CParamInfo::SetNumber(float& field, float newValue)
{
    if (newValue < field || newValue > field)
    {
        field = newValue;
        changed.Notify();
    }
}

void CParamInfo::SetText(Core::CCharString& field, const char* newText)
{
    field.Assign(newText);
    changed.Notify();
}

void CParamInfo::HoldValueToText(IParamValueToText* newValueToText, bool owned)
{
    if (newValueToText != nullptr)
    {
        valueToText.Set(newValueToText, owned);
        return;
    }
    const char* format = IsWholeValueKind(type) ? "%.0f" : "%.2f";
    valueToText.Set(new CParamValueToText(format, false, "{value}"), true);
}

} // namespace Mirel::DataModel::Objects
