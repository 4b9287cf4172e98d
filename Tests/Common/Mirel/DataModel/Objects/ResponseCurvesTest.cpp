#include "Mirel/DataModel/Objects/ResponseCurves.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace Mirel::DataModel::Objects;

namespace
{

double Linear(double x)
{
    return x;
}

/// A curve that rises steeply at first, over so many powers of ten, and the one that undoes it.
double Logarithm(double x, double scale)
{
    return std::log(scale * x + 1.0) / std::log(scale + 1.0);
}

double Exponential(double x, double scale)
{
    return (std::pow(scale + 1.0, x) - 1.0) / scale;
}

struct SRow
{
    int code;
    const char* modelName;
    const char* display;
    const char* speed;
    double (*function)(double x);
    double (*inverse)(double x);
};

double Log3(double x)
{
    return Logarithm(x, 1000.0);
}
double Log2(double x)
{
    return Logarithm(x, 100.0);
}
double Log1(double x)
{
    return Logarithm(x, 10.0);
}
double Log(double x)
{
    return Logarithm(x, 1.0);
}
double Exp(double x)
{
    return Exponential(x, 1.0);
}
double Exp1(double x)
{
    return Exponential(x, 10.0);
}
double Exp2(double x)
{
    return Exponential(x, 100.0);
}
double Exp3(double x)
{
    return Exponential(x, 1000.0);
}
double Root(double x)
{
    return std::sqrt(x);
}
double Square(double x)
{
    return x * x;
}

const SRow rows[] = {
    {0, "log3", "Log3", "Fast 5", Log3, Exp3},
    {1, "log2", "Log2", "Fast 4", Log2, Exp2},
    {2, "log1", "Log1", "Fast 3", Log1, Exp1},
    {3, nullptr, "Log0", "Fast 2", Linear, Linear},
    {4, "square_root", "Square Root", "Fast 1", Root, Square},
    {5, "log", "Log", "Fast", Log, Exp},
    {6, nullptr, "Linear", "Linear", Linear, Linear},
    {7, "exp", "Exp", "Slow", Exp, Log},
    {8, "square", "Square", "Slow 1", Square, Root},
    {9, nullptr, "Exp0", "Slow 2", Linear, Linear},
    {10, "exp1", "Exp1", "Slow 3", Exp1, Log1},
    {11, "exp2", "Exp2", "Slow 4", Exp2, Log2},
    {12, "exp3", "Exp3", "Slow 5", Exp3, Log3},
};

constexpr double tolerance = 1e-5;

} // namespace

TEST(ResponseCurves, EveryCodeHasItsTexts)
{
    for (const SRow& row : rows)
    {
        const SResponseCurve* curve = GetResponseCurve(row.code);
        ASSERT_NE(curve, nullptr) << row.display;
        EXPECT_EQ(curve->code, row.code);
        EXPECT_STREQ(curve->modelName, row.modelName);
        EXPECT_STREQ(curve->display, row.display);
        EXPECT_STREQ(curve->speed, row.speed);
    }
    EXPECT_EQ(responseCurveCount, 13);
}

TEST(ResponseCurves, EveryCodeGivesItsFunctionAndTheMirroredOne)
{
    for (const SRow& row : rows)
    {
        const SResponsePair pair = GetResponsePair(row.code);
        EXPECT_EQ(pair.function, GetResponseCurve(row.code)->function);
        for (int i = 0; i <= 20; ++i)
        {
            const double x = i / 20.0;
            EXPECT_NEAR((*pair.function)(static_cast<float>(x)), row.function(x), tolerance) << row.display;
            EXPECT_NEAR((*pair.inverse)(static_cast<float>(x)), row.inverse(x), tolerance) << row.display;
        }
    }
}

TEST(ResponseCurves, InverseUndoesTheFunction)
{
    for (const SRow& row : rows)
    {
        const SResponsePair pair = GetResponsePair(row.code);
        for (int i = 0; i <= 20; ++i)
        {
            const float x = static_cast<float>(i) / 20.0f;
            EXPECT_NEAR((*pair.inverse)((*pair.function)(x)), x, tolerance) << row.display;
        }
    }
}

TEST(ResponseCurves, CodesBeyondTheTableAreStraightLines)
{
    for (const int code : {-1, 13, 255, -2147483647 - 1, 2147483647})
    {
        EXPECT_EQ(GetResponseCurve(code), nullptr);
        const SResponsePair pair = GetResponsePair(code);
        EXPECT_EQ((*pair.function)(0.3f), 0.3f);
        EXPECT_EQ((*pair.inverse)(0.3f), 0.3f);
    }
}

TEST(ResponseCurves, ModelNamesGiveTheirCodeAndAnythingElseLinear)
{
    for (const SRow& row : rows)
    {
        if (row.modelName != nullptr)
        {
            EXPECT_EQ(ResponseCodeFromModelName(row.modelName), row.code);
        }
    }
    for (const char* name : {"", "linear", "log0", "exp0", "Log3", "log3 ", "square root"})
    {
        EXPECT_EQ(ResponseCodeFromModelName(name), 6) << name;
    }
    EXPECT_EQ(ResponseCodeFromModelName(nullptr), 6);
}

TEST(ResponseCurves, DisplayTextsGiveTheirCode)
{
    for (const SRow& row : rows)
    {
        int code = -1;
        EXPECT_TRUE(ResponseCodeFromDisplay(row.display, code));
        EXPECT_EQ(code, row.code);
    }
    int code = -1;
    for (const char* text : {"", "linear", "log3", "Fast 5", "none"})
    {
        EXPECT_FALSE(ResponseCodeFromDisplay(text, code)) << text;
    }
    EXPECT_FALSE(ResponseCodeFromDisplay(nullptr, code));
    EXPECT_EQ(code, -1);
}
