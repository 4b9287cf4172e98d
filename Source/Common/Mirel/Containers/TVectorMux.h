#pragma once

#include "Mirel/Containers/TIVector.h"

namespace Mirel::Containers
{

/// Two lists, which must outlive this one, seen as one: the first, then the second.
template <class T>
class TConstVectorMux : public TIConstVector<T>
{
public:
    TConstVectorMux(const TIConstVector<T>& first_, const TIConstVector<T>& second_)
        : first(first_),
          second(second_)
    {
    }

    int GetCount() const override { return first.GetCount() + second.GetCount(); }

    const T& operator[](int index) const override
    {
        const int split = first.GetCount();
        return index < split ? first[index] : second[index - split];
    }

private:
    const TIConstVector<T>& first;
    const TIConstVector<T>& second;
};

/// The same with write access.
template <class T>
class TVectorMux : public TIVector<T>
{
public:
    TVectorMux(TIVector<T>& first_, TIVector<T>& second_) : first(first_), second(second_) {}

    int GetCount() const override { return first.GetCount() + second.GetCount(); }

    const T& operator[](int index) const override
    {
        const int split = first.GetCount();
        return index < split ? first[index] : second[index - split];
    }

    T& operator[](int index) override
    {
        const int split = first.GetCount();
        return index < split ? first[index] : second[index - split];
    }

private:
    TIVector<T>& first;
    TIVector<T>& second;
};

} // namespace Mirel::Containers
