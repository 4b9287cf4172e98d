#include "Mirel/DataModel/Objects/CMultipleCaptureCurveLink.h"

#include <memory>

namespace Mirel::DataModel::Objects
{

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
