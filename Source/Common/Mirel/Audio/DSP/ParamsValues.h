#pragma once

#include "Mirel/Containers/TDynamicVector.h"

#include <algorithm>

namespace Mirel::Audio::DSP
{

/// A block of parameter values, read by index.
class IConstParamsValues
{
public:
    virtual int GetCount() const = 0;
    virtual float GetValue(int index) const = 0;
    virtual ~IConstParamsValues() = default;
};

class IParamsValues : public IConstParamsValues
{
public:
    virtual void SetValue(int index, float value) = 0;
};

/// A view of an array of values that the caller keeps alive.
class CParamsValues : public IParamsValues
{
public:
    CParamsValues() = default;
    CParamsValues(float* values_, int count_) : values(values_), count(count_) {}

    int GetCount() const override { return count; }

    /// 0 when there is no such value.
    float GetValue(int index) const override { return Holds(index) ? values[index] : 0.0f; }

    /// Ignored when there is no such value.
    void SetValue(int index, float value) override
    {
        if (Holds(index))
        {
            values[index] = value;
        }
    }

private:
    bool Holds(int index) const { return values != nullptr && index >= 0 && index < count; }

    float* values = nullptr;
    int count = 0;
};

/// Values with storage of their own. No range check: the index must be in range.
class CDynamicParamsValues : public IParamsValues
{
public:
    explicit CDynamicParamsValues(int count = 0) : values(count) {}

    void Resize(int count) { values.Resize(count); }

    int GetCount() const override { return values.GetCount(); }
    float GetValue(int index) const override { return values[index]; }
    void SetValue(int index, float value) override { values[index] = value; }

private:
    Containers::TDynamicVector<float, Containers::CStepGrowthStrategy> values;
};

/// A window on another block, from index first to index last, both included: how a composition hands a filter
/// its part. A last below first reads as empty.
class CConstParamsValuesDeMux : public IConstParamsValues
{
public:
    CConstParamsValuesDeMux(const IConstParamsValues& source_, int first_, int last)
        : source(source_),
          first(first_),
          count(last - first_ + 1)
    {
    }

    /// Can be 0 or less, for an empty window.
    int GetCount() const override { return count; }

    /// 0 outside the window.
    float GetValue(int index) const override
    {
        return index >= 0 && index < count ? source.GetValue(first + index) : 0.0f;
    }

private:
    const IConstParamsValues& source;
    int first;
    int count;
};

/// Two blocks as one: the first, then the second. An empty window may count less than 0 and counts as 0 here.
class CConstParamsValuesMux : public IConstParamsValues
{
public:
    CConstParamsValuesMux(const IConstParamsValues& first_, const IConstParamsValues& second_)
        : first(first_),
          second(second_)
    {
    }

    int GetCount() const override { return CountOf(first) + CountOf(second); }

    float GetValue(int index) const override
    {
        const int split = CountOf(first);
        return index < split ? first.GetValue(index) : second.GetValue(index - split);
    }

private:
    static int CountOf(const IConstParamsValues& values) { return std::max(values.GetCount(), 0); }

    const IConstParamsValues& first;
    const IConstParamsValues& second;
};

} // namespace Mirel::Audio::DSP
