#pragma once

#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Mirel/DataModel/Controls/CCurveViewer.h"
#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/Math/IFunction.h"

#include <functional>
#include <memory>
#include <utility>

namespace Tests
{

/// A function made of any code. Clones share the count of evaluations.
class CFunctionOf : public Mirel::Math::IFunction
{
public:
    explicit CFunctionOf(std::function<float(float)> code_)
        : code(std::move(code_)),
          evaluations(std::make_shared<int>(0))
    {
    }

    float operator()(float x) const override
    {
        ++*evaluations;
        return code(x);
    }

    const char* GetTypeKey() const override { return "{10000000-0000-0000-0000-000000000001}"; }
    CFunctionOf* Clone() const override { return new CFunctionOf(*this); }
    bool Serialize(Mirel::Serialization::IWriteDataStream&) const override { return true; }
    bool Deserialize(const Mirel::Serialization::IReadDataStream&) override { return true; }

    int TakeEvaluations() const { return std::exchange(*evaluations, 0); }

private:
    std::function<float(float)> code;
    std::shared_ptr<int> evaluations;
};

/// A curve from 0 to 1 with values from 0 to 1, so that positions are values.
class CUnitCurve : public Mirel::DataModel::Objects::CCaptureCurve
{
public:
    CUnitCurve()
        : CCaptureCurve(Mirel::DataModel::Objects::CCurveInfo(Real(0.0F, 1.0F), Real(0.0F, 1.0F), "", ""))
    {
    }

    explicit CUnitCurve(std::function<float(float)> code) : CUnitCurve()
    {
        SetValue(CFunctionOf(std::move(code)));
    }
};

} // namespace Tests
