#pragma once

namespace Mirel::Core
{

/// Read access to a value. T is what is handed out: a number, a text (const char*, owned by the object) or a
/// const reference.
template <class T>
class TIConstValue
{
public:
    virtual T GetValue() const = 0;
    virtual ~TIConstValue() = default;
};

/// Read and write access. A setter acts only on a change.
template <class T>
class TIValue : public virtual TIConstValue<T>
{
public:
    virtual void SetValue(T value) = 0;
};

} // namespace Mirel::Core
