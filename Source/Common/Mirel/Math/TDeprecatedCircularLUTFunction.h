#pragma once

#include "Mirel/Math/TCircularLUTFunction.h"

#include <span>

namespace Mirel::Math
{

/// The earlier form of TCircularLUTFunction, kept so that what was saved as one can be read. It has no
/// window: it always shows the whole ring, from the oldest value at xMin to the newest at xMax.
///
/// L is a Core::TLookupTable; what is created by the class key is the form with the constrained spline. One
/// writer, on one thread; everyone else evaluates clones.
template <class L>
class TDeprecatedCircularLUTFunction : public IFunction
{
public:
    static constexpr const char* classKey = "{C2D27847-1FD3-461e-9E92-922EAE3D07E2}";

    explicit TDeprecatedCircularLUTFunction(float xMin = 0.0f, float xMax = 1.0f) : ring(xMin, xMax) {}

    /// Allocates; the whole table becomes 0.
    void SetSize(int size)
    {
        ring.SetSize(size);
        ShowAll();
    }

    int GetSize() const { return ring.GetSize(); }

    /// Writes a block of any length over the oldest values.
    void Write(std::span<const float> block)
    {
        ring.Write(block);
        ShowAll();
    }

    float operator()(float x) const override { return ring(x); }

    const char* GetTypeKey() const override { return classKey; }
    TDeprecatedCircularLUTFunction* Clone() const override
    {
        return new TDeprecatedCircularLUTFunction(*this);
    }

    bool Serialize(Serialization::IWriteDataStream& stream) const override { return ring.Serialize(stream); }

    /// Without a range in the stream the object keeps its own. On false all is as it was.
    bool Deserialize(const Serialization::IReadDataStream& stream) override
    {
        const bool ok = ring.Deserialize(stream);
        ShowAll();
        return ok;
    }

private:
    void ShowAll() { ring.SetWindow(ring.GetWritePos(), ring.GetWritePos()); }

    TCircularLUTFunction<L> ring;
};

} // namespace Mirel::Math
