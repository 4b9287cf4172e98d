#pragma once

#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/TCaptureObjectTimeLink.h"

namespace Mirel::DataModel::Objects
{

/// Lets a parameter glide in a straight line to another's value, as far as its own range goes.
/// GUI thread only.
class CCaptureParamTimeLink : public TCaptureObjectTimeLink<IConstCaptureParam, ICaptureParam>
{
public:
    using TCaptureObjectTimeLink::TCaptureObjectTimeLink;

protected:
    bool Prepare(const IConstCaptureParam& source, const ICaptureParam& target) override;
    bool Step(ICaptureParam& target, double fraction) override;

private:
    float startValue = 0.0f;
    float endValue = 0.0f;
};

} // namespace Mirel::DataModel::Objects
