#pragma once

#include "Mirel/Core/Interpolators.h"
#include "Mirel/Core/TLookupTable.h"
#include "Mirel/Math/IFunction.h"
#include "Mirel/Math/TableRange.h"
#include "Mirel/Serialization/TLookupTableSerializer.h"

#include <algorithm>
#include <utility>

namespace Mirel::Math
{

/// The class key of a function over a table, by the table's interpolator.
template <class L>
inline constexpr const char* lutFunctionKey = nullptr;

template <>
inline constexpr const char*
    lutFunctionKey<Core::TLookupTable<float, Core::TLinearInterpolator<float, float>>> =
        "{1AB22102-22F5-45b9-BDAF-54B85C61968F}";

template <>
inline constexpr const char*
    lutFunctionKey<Core::TLookupTable<float, Core::TNearestInterpolator<float, float>>> =
        "{231C870E-FE12-41c6-8C0D-922CA68AD4F4}";

template <>
inline constexpr const char*
    lutFunctionKey<Core::TLookupTable<float, Core::TConstrainedSplineInterpolator<float, float>>> =
        "{CBE364D9-829B-4dd4-91B0-69DE39D28923}";

/// A function given as a table. L is a Core::TLookupTable; its interpolator names the class key. Beyond the
/// ends of the table the value is that of the end. Any thread evaluates.
template <class L>
class TLUTFunction : public IFunction
{
public:
    static constexpr const char* classKey = lutFunctionKey<L>;

    /// Empty, from 0 to 1: 0 everywhere.
    TLUTFunction() : TLUTFunction(L(0.0f, 1.0f)) {}

    /// The table's guard entries become those of a curve that goes on flat.
    explicit TLUTFunction(L table_) : table(std::move(table_)) { FillGuards(); }

    const L& GetTable() const { return table; }

    float operator()(float x) const override { return table(x); }

    const char* GetTypeKey() const override { return classKey; }

    bool Serialize(Serialization::IWriteDataStream& stream) const override
    {
        const bool ok = WriteTableRange(stream, table.GetXMin(), table.GetXMax());
        return stream.Write("values", Serialization::TLookupTableSerializer(table, "value")) && ok;
    }

    /// On false the table is as it was.
    bool Deserialize(const Serialization::IReadDataStream& stream) override
    {
        float xMin = 0.0f;
        float xMax = 0.0f;
        if (!ReadTableRange(stream, xMin, xMax))
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
        FillGuards();
        return true;
    }

    TLUTFunction* Clone() const override { return new TLUTFunction(*this); }

private:
    void FillGuards()
    {
        const int size = table.GetSize();
        float* positions = table.GetPositions();
        if (size > 0)
        {
            std::fill_n(positions - L::guardsBefore, L::guardsBefore, positions[0]);
            std::fill_n(positions + size, L::guardsAfter, positions[size - 1]);
        }
    }

    L table;
};

} // namespace Mirel::Math
