#pragma once

#include "Mirel/Graphics/Geometry.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace Benchmarks
{

/// What a signal looks like in a picture of one trace, as a curve graph asks for it.
struct CTrace
{
    static constexpr int width = 1000;
    static constexpr int height = 250;

    std::vector<Mirel::Graphics::CPointF> points;
    std::vector<int> lowest; ///< Row of the lowest value in each pixel column, and of the highest.
    std::vector<int> highest;
};

/// The points of a trace.
enum class EForm
{
    OnePoint,  ///< Each pixel column.
    MinMax,    ///< The least and the greatest of sixteen values of each column.
    TwoPoints, ///< Each column, half a pixel apart: the traces of the factory skin.
    Figure     ///< One signal against another: long lines this way and that.
};

enum class ESignal
{
    Noise,
    DenseSine, ///< 440 Hz over one second.
    ShortSine  ///< 440 Hz over 20 ms.
};

/// Values from -1 to 1, made for each place on the way through the picture, from 0 to 1.
class CSignal
{
public:
    explicit CSignal(ESignal kind_) : kind(kind_) {}

    double operator()(double place)
    {
        constexpr double turn = 6.283185307179586;
        switch (kind)
        {
        case ESignal::DenseSine:
            return std::sin(turn * 440.0 * place);
        case ESignal::ShortSine:
            return std::sin(turn * 440.0 * 0.02 * place);
        case ESignal::Noise:
            break;
        }
        random = random * 1664525U + 1013904223U;
        return random / 2147483648.0 - 1.0;
    }

private:
    ESignal kind;
    std::uint32_t random = 12345;
};

/// A picture of one trace, its points joined by a line each.
inline CTrace MakeTrace(ESignal kind, EForm form)
{
    CTrace trace;
    CSignal signal(kind);
    const int values = form == EForm::MinMax ? 16 : form == EForm::TwoPoints ? 2 : 1;
    double last = signal(0.0);
    const auto toRow = [](double value) { return (1.0 - value) * (CTrace::height - 1) / 2.0; };
    for (int x = 0; x < CTrace::width; ++x)
    {
        const auto column = static_cast<float>(x);
        double least = last;
        double greatest = last;
        for (int i = 0; i < values; ++i)
        {
            const double within = static_cast<double>(i) / values;
            last = signal((x + within) / CTrace::width);
            least = std::min(least, last);
            greatest = std::max(greatest, last);
            if (form == EForm::OnePoint || form == EForm::TwoPoints)
            {
                trace.points.push_back(
                    {column + static_cast<float>(within), static_cast<float>(toRow(last))});
            }
        }
        trace.lowest.push_back(static_cast<int>(toRow(least)));
        trace.highest.push_back(static_cast<int>(toRow(greatest)));
        if (form == EForm::MinMax)
        {
            trace.points.push_back({column, static_cast<float>(toRow(greatest))});
            trace.points.push_back({column, static_cast<float>(toRow(least))});
        }
        else if (form == EForm::Figure)
        {
            const double across = signal((x + 0.5) / CTrace::width);
            trace.points.push_back({static_cast<float>((1.0 + across) * (CTrace::height - 1) / 2.0),
                                    static_cast<float>(toRow(last))});
        }
    }
    return trace;
}

} // namespace Benchmarks
