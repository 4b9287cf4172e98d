#include "Mirel/DataModel/Objects/CMultipleCaptureCurveLink.h"

#include "Mirel/DataModel/Objects/Limits.h"

#include <memory>

namespace Mirel::DataModel::Objects
{

namespace
{

int CountFunctions(const Math::IFunction& function)
{
    const auto* combined = dynamic_cast<const CMultipleCaptureCurveLink::Operation*>(&function);
    int count = 1;
    for (int i = 0; combined != nullptr && i < combined->GetCount(); ++i)
    {
        count += CountFunctions(*combined->GetFunction(i));
    }
    return count;
}

} // namespace

void CMultipleCaptureCurveLink::SetOperation(Operation* newOperation, bool owned)
{
    if (operation.Get() != newOperation)
    {
        operation.Set(newOperation, owned);
        ApplySettings();
    }
}

void CMultipleCaptureCurveLink::UpdateFrom(const IConstCaptureCurve* changedSource)
{
    if (GetSources().empty())
    {
        return;
    }
    if (operation)
    {
        HandOnCombined(changedSource);
    }
    else
    {
        HandOn(changedSource == nullptr ? *GetSources().front() : *changedSource);
    }
}

void CMultipleCaptureCurveLink::HandOn(const IConstCaptureCurve& source)
{
    // Read for each target: a listener of one may have given the source another function.
    ForEachTarget(&source, [&source](ICaptureCurve& target) { target.SetValue(source.GetValue()); });
}

void CMultipleCaptureCurveLink::HandOnCombined(const IConstCaptureCurve* changedSource)
{
    int functions = 0;
    for (const IConstCaptureCurve* source : GetSources())
    {
        functions += CountFunctions(source->GetValue());
        if (functions > maxCombinedFunctions)
        {
            return;
        }
    }
    operation->Clear();
    for (const IConstCaptureCurve* source : GetSources())
    {
        operation->Add(&source->GetValue(), false);
    }
    const std::unique_ptr<const Math::IFunction> combined(operation->Clone());
    operation->Clear();
    ForEachTarget(changedSource,
                  [this, &combined](ICaptureCurve& target)
                  {
                      if (!IsSource(target))
                      {
                          target.SetValue(*combined);
                      }
                  });
}

} // namespace Mirel::DataModel::Objects
