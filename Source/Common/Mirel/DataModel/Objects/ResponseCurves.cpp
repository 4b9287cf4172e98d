#include "Mirel/DataModel/Objects/ResponseCurves.h"

#include "Mirel/Math/TFunction.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace Mirel::DataModel::Objects
{

namespace
{

using namespace Math::FunctionsLibrary;
using Math::SharedFunction;

using Table = std::array<SResponseCurve, responseCurveCount>;

const Table& GetTable()
{
    static const Table table = {{
        {0, "log3", "Log3", "Fast 5", &SharedFunction<NormLog3>()},
        {1, "log2", "Log2", "Fast 4", &SharedFunction<NormLog2>()},
        {2, "log1", "Log1", "Fast 3", &SharedFunction<NormLog1>()},
        {3, nullptr, "Log0", "Fast 2", &SharedFunction<Identity>()},
        {4, "square_root", "Square Root", "Fast 1", &SharedFunction<SquareRoot>()},
        {5, "log", "Log", "Fast", &SharedFunction<NormLog>()},
        {linearResponseCurve, nullptr, "Linear", "Linear", &SharedFunction<Identity>()},
        {7, "exp", "Exp", "Slow", &SharedFunction<NormExp>()},
        {8, "square", "Square", "Slow 1", &SharedFunction<Square>()},
        {9, nullptr, "Exp0", "Slow 2", &SharedFunction<Identity>()},
        {10, "exp1", "Exp1", "Slow 3", &SharedFunction<NormExp1>()},
        {11, "exp2", "Exp2", "Slow 4", &SharedFunction<NormExp2>()},
        {12, "exp3", "Exp3", "Slow 5", &SharedFunction<NormExp3>()},
    }};
    return table;
}

/// Null if no row has the text.
const SResponseCurve* FindRow(const char* SResponseCurve::*field, const char* text)
{
    if (text == nullptr)
    {
        return nullptr;
    }
    for (const SResponseCurve& row : GetTable())
    {
        if (row.*field != nullptr && std::string_view(row.*field) == text)
        {
            return &row;
        }
    }
    return nullptr;
}

} // namespace

const SResponseCurve* GetResponseCurve(int code)
{
    return code >= 0 && code < responseCurveCount ? &GetTable()[static_cast<std::size_t>(code)] : nullptr;
}

SResponsePair GetResponsePair(int code)
{
    const SResponseCurve* curve = GetResponseCurve(code);
    if (curve == nullptr)
    {
        return GetResponsePair(linearResponseCurve);
    }
    return {curve->function, GetResponseCurve(responseCurveCount - 1 - code)->function};
}

int ResponseCodeFromModelName(const char* name)
{
    const SResponseCurve* row = FindRow(&SResponseCurve::modelName, name);
    return row == nullptr ? linearResponseCurve : row->code;
}

bool ResponseCodeFromDisplay(const char* display, int& code)
{
    const SResponseCurve* row = FindRow(&SResponseCurve::display, display);
    if (row == nullptr)
    {
        return false;
    }
    code = row->code;
    return true;
}

} // namespace Mirel::DataModel::Objects
