#pragma once

#include "Mirel/Containers/GrowthStrategies.h"
#include "Mirel/Containers/TIVector.h"

#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace Mirel::Containers
{

/// A growable array of values. Elements move when the capacity changes, and only then.
template <class T, class Growth = CExpGrowthStrategy>
class TDynamicVector : public TIVector<T>
{
public:
    explicit TDynamicVector(int count = 0, Growth growth_ = Growth()) : growth(growth_) { Resize(count); }

    using TIVector<T>::operator[];
    int GetCount() const override { return static_cast<int>(items.size()); }
    const T& operator[](int index) const override { return items[static_cast<std::size_t>(index)]; }
    T& operator[](int index) override { return items[static_cast<std::size_t>(index)]; }

    int GetCapacity() const { return static_cast<int>(items.capacity()); }

    /// Keeps the leading elements; new ones are value-initialised. A negative count counts as 0.
    void Resize(int count)
    {
        const int wanted = count < 0 ? 0 : count;
        SetCapacity(growth.GetCapacity(wanted, GetCapacity()));
        items.resize(static_cast<std::size_t>(wanted));
    }

    void Add(T item)
    {
        const int count = GetCount();
        if (count == GetCapacity())
        {
            SetCapacity(growth.GetCapacity(count + 1, count));
        }
        items.push_back(std::move(item));
    }

    /// Removes one element and closes the gap.
    void Remove(int index) { items.erase(items.begin() + index); }

    void Clear() { Resize(0); }

    /// The elements side by side; null or one past the end of nothing when there are none.
    const T* GetData() const { return items.data(); }
    T* GetData() { return items.data(); }

private:
    void SetCapacity(int capacity)
    {
        const auto wanted = static_cast<std::size_t>(capacity);
        if (wanted >= items.capacity())
        {
            items.reserve(wanted);
            return;
        }
        std::vector<T> smaller;
        smaller.reserve(wanted);
        const auto kept = items.size() < wanted ? items.size() : wanted;
        smaller.insert(smaller.end(), std::make_move_iterator(items.begin()),
                       std::make_move_iterator(items.begin() + static_cast<std::ptrdiff_t>(kept)));
        items = std::move(smaller);
    }

    std::vector<T> items;
    Growth growth;
};

} // namespace Mirel::Containers
