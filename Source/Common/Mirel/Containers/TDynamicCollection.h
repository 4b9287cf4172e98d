#pragma once

#include "Mirel/Containers/TIVector.h"

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace Mirel::Containers
{

/// A list that owns objects of class C and shows them as I. The objects keep their addresses; a copy of the
/// list copies them.
template <class C, class I = C>
class TDynamicCollection : public TIVector<I>
{
public:
    TDynamicCollection() = default;
    TDynamicCollection(TDynamicCollection&&) noexcept = default;
    TDynamicCollection& operator=(TDynamicCollection&&) noexcept = default;
    ~TDynamicCollection() override = default;

    TDynamicCollection(const TDynamicCollection& other) : TIVector<I>(other)
    {
        items.reserve(other.items.size());
        for (const auto& item : other.items)
        {
            items.push_back(std::make_unique<C>(*item));
        }
    }

    TDynamicCollection& operator=(const TDynamicCollection& other)
    {
        if (this != &other)
        {
            *this = TDynamicCollection(other);
        }
        return *this;
    }

    using TIVector<I>::operator[];
    int GetCount() const override { return static_cast<int>(items.size()); }
    const C& operator[](int index) const override { return *items[static_cast<std::size_t>(index)]; }
    C& operator[](int index) override { return *items[static_cast<std::size_t>(index)]; }

    /// Appends a new object made from the arguments.
    template <class... Arguments>
    C& Add(Arguments&&... arguments)
    {
        items.push_back(std::make_unique<C>(std::forward<Arguments>(arguments)...));
        return *items.back();
    }

    void Clear() { items.clear(); }

private:
    std::vector<std::unique_ptr<C>> items;
};

} // namespace Mirel::Containers
