#pragma once

#include "Mirel/Core/Interpolators.h"
#include "Mirel/Core/TLookupTable.h"
#include "Mirel/Math/IFunction.h"
#include "Mirel/Serialization/TLookupTableSerializer.h"

#include <utility>

namespace Mirel::Math
{

/// The class key of a function over a table, by the table's interpolator.
template <class L>
inline constexpr const char* lutFunctionKey = nullptr;

template <>
inline constexpr const char*
    lutFunctionKey<Core::TLookupTable<float, Core::TNearestInterpolator<float, float>>> =
        "{231C870E-FE12-41c6-8C0D-922CA68AD4F4}";

template <>
inline constexpr const char*
    lutFunctionKey<Core::TLookupTable<float, Core::TConstrainedSplineInterpolator<float, float>>> =
        "{CBE364D9-829B-4dd4-91B0-69DE39D28923}";

/// A function given as a table. L is a Core::TLookupTable; its interpolator names the class key.
template <class L>
class TLUTFunction : public IFunction
{
public:
    explicit TLUTFunction(L table_) : table(std::move(table_)) {}

    const L& GetTable() const { return table; }

    float operator()(float x) const override { return table(x); }

    const char* GetTypeKey() const override { return lutFunctionKey<L>; }

    bool Serialize(Serialization::IWriteDataStream& stream) const override
    {
        const bool ok = stream.Write("xMin", table.GetXMin()) && stream.Write("xMax", table.GetXMax());
        return stream.Write("values", Serialization::TLookupTableSerializer(table, "value")) && ok;
    }

    /// On false the table is as it was.
    bool Deserialize(const Serialization::IReadDataStream& stream) override
    {
        float xMin = 0.0f;
        float xMax = 0.0f;
        if (!stream.Read("xMin", xMin) || !stream.Read("xMax", xMax))
        {
            return false;
        }
        L read(xMin, xMax);
        Serialization::TLookupTableDeSerializer reader(read, "value");
        if (!stream.Read("values", reader))
        {
            return false;
        }
        table = std::move(read);
        return true;
    }

    TLUTFunction* Clone() const override { return new TLUTFunction(*this); }

private:
    L table;
};

} // namespace Mirel::Math
