#pragma once

#include "Mirel/Core/TOwnership.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/Objects/LinkTransformation.h"
#include "Mirel/DataModel/TBaseCaptureObjectLink.h"

namespace Mirel::DataModel::Objects
{

/// A one-way link between two parameters: writes the source's value, transformed, to the target.
/// GUI thread only.
class CCaptureParamLink : public TBaseCaptureObjectLink<IConstCaptureParam, ICaptureParam>
{
public:
    const Math::IFunction& GetResponse() const;

    /// The curve that values go through; null for the identity. With owned the function is destroyed with the
    /// link or on replacement, otherwise it must outlive its use here.
    void SetResponse(const Math::IFunction* newResponse, bool owned);

    bool IsReverse() const { return reverse; }
    void SetReverse(bool newReverse) { SetFlag(reverse, newReverse); }

    bool IsNormalized() const { return normalized; }

    /// Maps the source's range on the target's; otherwise values go over as they are.
    void SetNormalized(bool newNormalized) { SetFlag(normalized, newNormalized); }

    bool IsDiff() const { return diff; }

    /// Adds the source's movement to the target's value, which leaves room for others that write it.
    void SetDiff(bool newDiff) { SetFlag(diff, newDiff); }

    /// Movement counts from here; 0 at first.
    float GetLastSourceValue() const { return lastSourceValue; }

    void Update() override;

private:
    void SetFlag(bool& flag, bool newValue);

    Core::TOwnership<const Math::IFunction> response;
    bool reverse = false;
    bool normalized = false;
    bool diff = false;
    float lastSourceValue = 0.0f;
};

} // namespace Mirel::DataModel::Objects
