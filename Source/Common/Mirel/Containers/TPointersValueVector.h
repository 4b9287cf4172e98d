#pragma once

#include "Mirel/Containers/TIVector.h"

#include <cstddef>
#include <initializer_list>
#include <vector>

namespace Mirel::Containers
{

/// Objects that live elsewhere, by pointer, seen as a list of values.
template <class T>
class TPointersValueVector : public TIConstVector<T>
{
public:
    TPointersValueVector() = default;
    TPointersValueVector(std::initializer_list<const T*> items_) : items(items_) {}

    int GetCount() const override { return static_cast<int>(items.size()); }
    const T& operator[](int index) const override { return *items[static_cast<std::size_t>(index)]; }

private:
    std::vector<const T*> items;
};

} // namespace Mirel::Containers
