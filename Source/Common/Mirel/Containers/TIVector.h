#pragma once

namespace Mirel::Containers
{

/// Read access to a list by index, whatever holds the elements. An index outside 0 to GetCount() - 1 is the
/// caller's error.
template <class T>
class TIConstVector
{
public:
    virtual int GetCount() const = 0;
    virtual const T& operator[](int index) const = 0;
    virtual ~TIConstVector() = default;
};

/// The same with write access to the elements.
template <class T>
class TIVector : public TIConstVector<T>
{
public:
    using TIConstVector<T>::operator[];
    virtual T& operator[](int index) = 0;
};

} // namespace Mirel::Containers
