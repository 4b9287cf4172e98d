#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/EValueKind.h"

#include <functional>
#include <utility>

namespace Tests
{

inline Mirel::DataModel::Objects::CParamInfo RangeInfo(float min, float max)
{
    return {Mirel::DataModel::Objects::ValueKindReal, min, max, min, "", "", ""};
}

/// A parameter with a range.
class CRangeParam : public Mirel::DataModel::Objects::CCaptureParam
{
public:
    CRangeParam(float min, float max, float value_ = 0.0f) : CCaptureParam(RangeInfo(min, max))
    {
        SetValue(value_);
    }
};

/// A source that holds and fires what it is told to, NaN and values beyond its range included.
class CFreeParam : public virtual Mirel::DataModel::Objects::IConstCaptureParam, public Mirel::Core::CCapture
{
public:
    CFreeParam(float min, float max) : info(RangeInfo(min, max)) {}

    float GetValue() const override { return value; }
    Mirel::Core::IEventProvider& GetValueChangedEventProvider() const override
    {
        return GetChangedEventProvider();
    }
    const Mirel::DataModel::Objects::IConstParamInfo& GetInfo() const override { return info; }

    void Fire(float newValue)
    {
        value = newValue;
        NotifyChanged();
    }

private:
    Mirel::DataModel::Objects::CParamInfo info;
    float value = 0.0f;
};

/// A function made from a lambda, as the formula language makes them. With a count given, adds one to it when
/// it dies.
class CLambdaFunction : public Mirel::Math::IFunction
{
public:
    explicit CLambdaFunction(std::function<float(float)> body_, int* deaths_ = nullptr)
        : body(std::move(body_)),
          deaths(deaths_)
    {
    }
    CLambdaFunction(const CLambdaFunction&) = delete;
    CLambdaFunction& operator=(const CLambdaFunction&) = delete;

    ~CLambdaFunction() override
    {
        if (deaths != nullptr)
        {
            ++*deaths;
        }
    }

    const char* GetTypeKey() const override { return nullptr; }
    CLambdaFunction* Clone() const override { return new CLambdaFunction(body); }
    float operator()(float x) const override { return body(x); }
    bool Serialize(Mirel::Serialization::IWriteDataStream&) const override { return true; }
    bool Deserialize(const Mirel::Serialization::IReadDataStream&) override { return true; }

private:
    std::function<float(float)> body;
    int* deaths;
};

} // namespace Tests
