#pragma once

#include "Mirel/Audio/DSP/ParamsValues.h"
#include "Mirel/Containers/TIVector.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace Mirel::Audio::DSP
{

/// How parameters move inside a block: entry 0 holds their values at the start of the block, entry 1 their
/// increments per sample, entry 2 the increments of those. No entries: nothing changed.
using IConstParamsVariations = Containers::TIConstVector<IConstParamsValues>;

/// A reader steps at most this many orders.
inline constexpr int maxVariationOrders = 3;

/// Moves terms by one sample: each term takes up the next higher one, from the highest down.
inline void StepVariation(float* terms, int orders)
{
    for (int k = orders - 2; k >= 0; --k)
    {
        terms[k] += terms[k + 1];
    }
}

/// A variations block with storage of its own. Allocates when it grows beyond what it ever held, and only
/// then.
class CDynamicParamsVariations : public IConstParamsVariations
{
public:
    explicit CDynamicParamsVariations(int valueCount_ = 0) : valueCount(valueCount_) {}

    /// Sets how many parameters each order describes. Allocates.
    void SetValueCount(int newCount)
    {
        valueCount = newCount;
        for (int k = 0; k < orders.GetCount(); ++k)
        {
            orders[k].Resize(newCount);
        }
    }

    /// Sets how many orders are live. Buffers are kept for a later growth; with force exactly this many are
    /// kept.
    void Resize(int count, bool force = false)
    {
        live = std::max(count, 0);
        if (live <= orders.GetCount() && !force)
        {
            return;
        }
        const int kept = std::min(live, orders.GetCount());
        orders.Resize(live);
        for (int k = kept; k < live; ++k)
        {
            orders[k].Resize(valueCount);
        }
    }

    /// Drops the highest orders that hold nothing but zeros. Order 0 stays.
    void Optimize()
    {
        while (live > 1 && IsZero(orders[live - 1]))
        {
            --live;
        }
    }

    int GetCount() const override { return live; }
    const CDynamicParamsValues& operator[](int order) const override { return orders[order]; }
    CDynamicParamsValues& operator[](int order) { return orders[order]; }

private:
    static bool IsZero(const IConstParamsValues& values)
    {
        for (int i = 0; i < values.GetCount(); ++i)
        {
            if (values.GetValue(i) != 0.0f)
            {
                return false;
            }
        }
        return true;
    }

    Containers::TDynamicVector<CDynamicParamsValues, Containers::CStepGrowthStrategy> orders;
    int valueCount;
    int live = 0;
};

/// A window on each order of another variations block, for the filters inside a composition.
/// Shows at most maxVariationOrders; a null source has none.
class CConstParamsVariationsDeMux : public IConstParamsVariations
{
public:
    CConstParamsVariationsDeMux(const IConstParamsVariations* source, int first, int last)
    {
        if (source == nullptr)
        {
            return;
        }
        count = std::min(source->GetCount(), maxVariationOrders);
        for (int k = 0; k < count; ++k)
        {
            windows[static_cast<std::size_t>(k)].emplace((*source)[k], first, last);
        }
    }

    int GetCount() const override { return count; }
    const IConstParamsValues& operator[](int order) const override
    {
        return *windows[static_cast<std::size_t>(order)];
    }

private:
    std::array<std::optional<CConstParamsValuesDeMux>, maxVariationOrders> windows;
    int count = 0;
};

} // namespace Mirel::Audio::DSP
