#include "Mirel/SkinEngine/Model/FormulaNesting.h"
#include "ModelRig.h"
#include "Support/EventCounter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;
using testing::IsEmpty;
using Tests::CModelRig;

TEST(FormulaElements, ReadObjectsOfTheModel)
{
    CModelRig rig;
    EXPECT_TRUE(
        rig.Build("<FORMULA_PARAM id='f' formula='a + line(2) + plane(1, a)' max='1'/><PARAM id='a' max='9' "
                  "default='3'/>"
                  "<FORMULA_CURVE id='line' formula='a * x'/><FORMULA_SURFACE id='plane' formula='x - y'/>"));
    EXPECT_FLOAT_EQ(rig.Value("f"), 3 + 6 + (1 - 3));
    Tests::CEventCounter changes(rig.Find<IConstCaptureParam>("f")->GetValueChangedEventProvider());
    rig.Param("a").SetValue(1);
    EXPECT_FLOAT_EQ(rig.Value("f"), 1 + 2 + 0);
    EXPECT_GT(changes.Take(), 0);
    EXPECT_EQ(rig.Find<ICaptureParam>("f"), nullptr);
    EXPECT_EQ(rig.Find<ICaptureCurve>("line"), nullptr);
}

TEST(FormulaElements, AMissingObjectStandsForNothing)
{
    CModelRig rig;
    EXPECT_FALSE(rig.Build("<FORMULA_PARAM id='f' formula='5 + q + r(1) + s(1, 2)'/>"));
    EXPECT_FLOAT_EQ(rig.Value("f"), 5);
    EXPECT_EQ(rig.TakeMessages().size(), 4U);
}

TEST(FormulaElements, ACopyIsWhatTheFormulaWas)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<PARAM id='a' max='9' default='3'/><FORMULA_CURVE id='g' formula='a*x'/>"
                          "<FORMULA_CURVE id='f' formula='g(x)+1'/>"));
    const std::unique_ptr<const Math::IFunction> copy(rig.Find<IConstCaptureCurve>("f")->GetValue().Clone());
    rig.Param("a").SetValue(5);
    EXPECT_FLOAT_EQ((*copy)(2), 7);
    EXPECT_FLOAT_EQ(rig.Find<IConstCaptureCurve>("f")->GetValue()(2), 11);
    rig.model.Clear();
    EXPECT_FLOAT_EQ((*copy)(2), 7);
}

TEST(FormulaElements, FormulasThatCallThemselvesComeToAnEnd)
{
    CModelRig rig;
    EXPECT_TRUE(
        rig.Build("<PARAM id='a' max='9'/><FORMULA_CURVE id='f' formula='f(x)+1+a'/>"
                  "<FORMULA_CURVE id='g' formula='h(x)*h(x)+a'/><FORMULA_CURVE id='h' formula='g(x)+g(x)+1'/>"
                  "<CURVE id='k'/><CURVE_LINK from='g' to='k' trigger_condition='all'/>"));
    rig.Param("a").SetValue(2);
    EXPECT_GT(rig.Find<IConstCaptureCurve>("f")->GetValue()(1), 0);
    const std::unique_ptr<const Math::IFunction> copy(rig.Find<IConstCaptureCurve>("h")->GetValue().Clone());
    EXPECT_NE(copy, nullptr);
}

TEST(FormulaElements, FormulasThatDoubleOneAnotherComeToAnEnd)
{
    std::ostringstream body;
    body
        << "<PARAM id='a' max='9'/><FORMULA_CURVE id='f0' formula='x+a'/><FORMULA_PARAM id='p0' formula='a'/>"
        << "<FORMULA_PARAM id='p1' formula='p0'/><CURVE id='k'/>";
    for (int i = 1; i < 60; ++i)
    {
        body << "<FORMULA_CURVE id='f" << i << "' formula='f" << i - 1 << "(x)+f" << i - 1 << "(x)'/>";
        body << "<FORMULA_PARAM id='p" << i + 1 << "' formula='p" << i << "+p" << i - 1 << "'/>";
    }
    body << "<CURVE_LINK from='f59' to='k' trigger_condition='all'/>";
    CModelRig rig;
    EXPECT_TRUE(rig.Build(body.str()));
    rig.Param("a").SetValue(1);
    static_cast<void>(rig.Find<IConstCaptureCurve>("f59")->GetValue()(1));
    EXPECT_FLOAT_EQ(rig.Find<IConstCaptureCurve>("f3")->GetValue()(1), 16);
}

TEST(FormulaElements, ACopyThatLeadsBackIntoItselfDoesNotGrowForEver)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<PARAM id='a' max='10000'/><CURVE id='k' y_default='1' y_max='2'/>"
                          "<FORMULA_CURVE id='f' formula='k(x)+k(x)+a'/><CURVE_LINK from='f' to='k'/>"));
    for (int i = 1; i < 2000; ++i)
    {
        rig.Param("a").SetValue(static_cast<float>(i));
    }
    static_cast<void>(rig.Find<IConstCaptureCurve>("k")->GetValue()(1));
}

TEST(FormulaElements, ParametersThatReadOneAnotherComeToRest)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<PARAM id='a' max='9'/><FORMULA_PARAM id='p' formula='q+a'/>"
                          "<FORMULA_PARAM id='q' formula='p+1'/>"));
    rig.Param("a").SetValue(1);
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
}

} // namespace
} // namespace Mirel::SkinEngine
