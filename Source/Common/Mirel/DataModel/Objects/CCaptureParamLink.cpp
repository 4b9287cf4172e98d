#include "Mirel/DataModel/Objects/CCaptureParamLink.h"

#include "Mirel/DataModel/Objects/ResponseCurves.h"

namespace Mirel::DataModel::Objects
{

const Math::IFunction& CCaptureParamLink::GetResponse() const
{
    return response ? *response : *GetResponsePair(linearResponseCurve).function;
}

void CCaptureParamLink::SetResponse(const Math::IFunction* newResponse, bool owned)
{
    const bool differs = response.Get() != newResponse;
    response.Set(newResponse, owned);
    if (differs)
    {
        ApplySettings();
    }
}

void CCaptureParamLink::Update()
{
    const IConstCaptureParam* source = GetSource();
    if (source == nullptr)
    {
        return;
    }
    const float value = source->GetValue();
    const bool moved = value < lastSourceValue || value > lastSourceValue;
    ICaptureParam* target = GetTarget();
    if (target != nullptr && (moved || !IsOnModifyOnly()))
    {
        const SLinkTransformation transformation{GetResponse(), reverse, normalized};
        const bool ranged = normalized || reverse;
        const SValueRange sourceRange = ranged ? GetRange(source->GetInfo()) : SValueRange{};
        const SValueRange targetRange = ranged ? GetRange(target->GetInfo()) : SValueRange{};
        float result = Transform(value, transformation, sourceRange, targetRange);
        if (diff)
        {
            result = target->GetValue() + result -
                     Transform(lastSourceValue, transformation, sourceRange, targetRange);
        }
        const Core::CLifeToken::CWatch watch(GetLife());
        target->SetValue(result);
        if (!watch.IsAlive())
        {
            return;
        }
    }
    lastSourceValue = value;
}

void CCaptureParamLink::SetFlag(bool& flag, bool newValue)
{
    if (flag != newValue)
    {
        flag = newValue;
        ApplySettings();
    }
}

} // namespace Mirel::DataModel::Objects
