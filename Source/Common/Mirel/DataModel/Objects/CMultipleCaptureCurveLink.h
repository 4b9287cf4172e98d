#pragma once

#include "Mirel/Core/TOwnership.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/TMultipleCaptureObjectLink.h"
#include "Mirel/Math/TNFunctionsCombination.h"

namespace Mirel::DataModel::Objects
{

/// A link from many curves to many. Without an operation each target gets the curve that has changed, or the
/// first one if none has in particular; with one, all curves combined in the order of the sources. The
/// changed curve itself is not written. GUI thread only.
class CMultipleCaptureCurveLink : public TMultipleCaptureObjectLink<IConstCaptureCurve, ICaptureCurve>
{
public:
    using Operation = Math::TNFunctionsCombination<Math::IFunction>;

    const Operation* GetOperation() const { return operation.Get(); }

    /// Null for none. The link replaces the operation's list of functions; curves of more than
    /// maxCombinedFunctions in all are not combined. With owned the operation is
    /// destroyed with the link or on replacement, otherwise it must outlive the link.
    ///
    /// A target that is a source as well is then not written: its curve would be made of itself and grow with
    /// every update.
    void SetOperation(Operation* newOperation, bool owned);

protected:
    void UpdateFrom(const IConstCaptureCurve* changedSource) override;

private:
    void HandOn(const IConstCaptureCurve& source);
    void HandOnCombined(const IConstCaptureCurve* changedSource);

    Core::TOwnership<Operation> operation;
};

} // namespace Mirel::DataModel::Objects
