#pragma once

#include "Mirel/DataModel/TBaseCaptureObjectLink.h"

namespace Mirel::DataModel
{

/// A link that hands the source's value on as it is. GUI thread only.
template <class TConst, class T>
class TCaptureObjectLink : public TBaseCaptureObjectLink<TConst, T>
{
public:
    TCaptureObjectLink() = default;

    void Update() override
    {
        const TConst* source = this->GetSource();
        T* target = this->GetTarget();
        if (source != nullptr && target != nullptr)
        {
            target->SetValue(source->GetValue());
        }
    }
};

} // namespace Mirel::DataModel
