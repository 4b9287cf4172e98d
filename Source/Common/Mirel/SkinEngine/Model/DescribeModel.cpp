#include "Mirel/SkinEngine/Model/DescribeModel.h"

#include "Mirel/DataModel/Objects/ValueToString.h"
#include "Mirel/Serialization/NumberText.h"
#include "Mirel/SkinEngine/Model/ObjectInterfaces.h"

#include <memory>
#include <type_traits>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;

namespace
{

std::string TextOf(const char* text)
{
    return text == nullptr ? "" : text;
}

std::string NumberText(float value)
{
    std::string text;
    Serialization::FormatNumber(value, text);
    return text;
}

std::string Quoted(const char* text)
{
    std::string quoted = "'";
    quoted += TextOf(text);
    return quoted += '\'';
}

std::string RangeText(const IConstParamInfo& info)
{
    return NumberText(info.GetMin()) + ".." + NumberText(info.GetMax());
}

std::string DescribeInfo(const IConstParamInfo& info)
{
    return Quoted(info.GetName()) + " " + RangeText(info) + " default " + NumberText(info.GetDefault()) +
           " type " + std::to_string(info.GetType()) + " unit " + Quoted(info.GetUnit());
}

float Middle(const IConstParamInfo& info)
{
    return info.GetMin() / 2 + info.GetMax() / 2;
}

std::string SampleCurve(const IConstCaptureCurve& curve)
{
    const IConstParamInfo& x = curve.GetInfo().GetXInfo();
    const Math::IFunction& function = curve.GetValue();
    return NumberText(function(x.GetMin())) + " " + NumberText(function(Middle(x))) + " " +
           NumberText(function(x.GetMax()));
}

std::string SampleSurface(const IConstCaptureSurface& surface)
{
    const IConstParamInfo& x = surface.GetInfo().GetXInfo();
    const IConstParamInfo& y = surface.GetInfo().GetYInfo();
    const Math::IBinaryFunction& function = surface.GetValue();
    return NumberText(function(x.GetMin(), y.GetMin())) + " " + NumberText(function(Middle(x), Middle(y))) +
           " " + NumberText(function(x.GetMax(), y.GetMax()));
}

void Describe(const IConstCaptureParam& param, SObjectDescription& described)
{
    described.kind = "param";
    described.value = NumberText(param.GetValue()) + " '" +
                      ValueToString(param.GetInfo().GetValueToText(), param.GetValue()) + "'";
    described.info = DescribeInfo(param.GetInfo());
}

void Describe(const IConstCaptureCurve& curve, SObjectDescription& described)
{
    described.kind = "curve";
    described.value = SampleCurve(curve);
    described.info = Quoted(curve.GetInfo().GetName()) + " x " + DescribeInfo(curve.GetInfo().GetXInfo()) +
                     " y " + DescribeInfo(curve.GetInfo().GetYInfo());
}

void Describe(const IConstCaptureSurface& surface, SObjectDescription& described)
{
    described.kind = "surface";
    described.value = SampleSurface(surface);
    described.info =
        Quoted(surface.GetInfo().GetName()) + " x " + DescribeInfo(surface.GetInfo().GetXInfo()) + " y " +
        DescribeInfo(surface.GetInfo().GetYInfo()) + " z " + DescribeInfo(surface.GetInfo().GetZInfo());
}

void Describe(const IConstCaptureString& string, SObjectDescription& described)
{
    described.kind = "string";
    described.value = Quoted(string.GetValue());
    described.info = Quoted(string.GetInfo().GetName()) + " default " + Quoted(string.GetInfo().GetDefault());
}

void Describe(const IConstAction& action, SObjectDescription& described)
{
    described.kind = "action";
    described.info = Quoted(action.GetInfo().GetName());
}

void Describe(const IConstCount& count, SObjectDescription& described)
{
    described.kind = "collection";
    described.value = std::to_string(count.GetCount());
}

void Describe(const IConstParamInfo& info, SObjectDescription& described)
{
    described.kind = "info";
    described.info = DescribeInfo(info);
}

/// False for an object of another kind. Writable is the form of it that can be set, or the same.
template <class I, class Writable>
bool DescribeAs(const Runtime::IDynamicObject& object, SObjectDescription& described)
{
    const I* found = FindInterface<I>(object);
    if (found == nullptr)
    {
        return false;
    }
    Describe(*found, described);
    described.writable = !std::is_same_v<I, Writable> && FindInterface<Writable>(object) != nullptr;
    return true;
}

} // namespace

std::vector<SObjectDescription> DescribeObjects(const ISkinModel& model)
{
    std::vector<SObjectDescription> objects;
    const std::unique_ptr<ISkinDynamicObjectsConstIterator> entry(model.GetObjects().CreateIterator());
    for (; entry->IsValid(); entry->Next())
    {
        const Runtime::IDynamicObject& object = entry->GetObject();
        SObjectDescription& described = objects.emplace_back();
        described.id = entry->GetId();
        described.kind = "object";
        DescribeAs<IConstCaptureParam, ICaptureParam>(object, described) ||
            DescribeAs<IConstCaptureCurve, ICaptureCurve>(object, described) ||
            DescribeAs<IConstCaptureSurface, ICaptureSurface>(object, described) ||
            DescribeAs<IConstCaptureString, ICaptureString>(object, described) ||
            DescribeAs<IConstAction, IConstAction>(object, described) ||
            DescribeAs<IConstCount, ICount>(object, described) ||
            DescribeAs<IConstParamInfo, IConstParamInfo>(object, described);
    }
    return objects;
}

std::string ToLine(const SObjectDescription& object)
{
    std::string line = object.id + ": " + (object.writable ? "" : "const ") + object.kind;
    if (!object.value.empty())
    {
        line += " = " + object.value;
    }
    if (!object.info.empty())
    {
        line += " | " + object.info;
    }
    return line;
}

} // namespace Mirel::SkinEngine
