#include "ModelRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;
using testing::Contains;
using testing::IsEmpty;
using Tests::CModelRig;

/// The line of the object that an element builds under the id "a".
std::string LineOf(CModelRig& rig, const std::string& element)
{
    rig.Build(element);
    for (const std::string& line : rig.Lines())
    {
        if (line.starts_with("a: "))
        {
            return line;
        }
    }
    return "";
}

TEST(ModelDescription, EachAttributeFillsItsField)
{
    const struct
    {
        const char* attributes;
        const char* line;
    } rows[] = {
        {"", "a: param = 0 '0.00' | '' 0..0 default 0 type 2 unit ''"},
        {"type='boolean'", "a: param = 0 '0' | '' 0..1 default 0 type 0 unit ''"},
        {"type='boolean' max='5' default='1'", "a: param = 1 '1' | '' 0..5 default 1 type 0 unit ''"},
        {"type='integer' max='5' default='3'", "a: param = 3 '3' | '' 0..5 default 3 type 1 unit ''"},
        {"type='real' max='5' default='3'", "a: param = 3 '3.00' | '' 0..5 default 3 type 2 unit ''"},
        {"type='other' max='5' default='3'", "a: param = 3 '3.00' | '' 0..5 default 3 type 2 unit ''"},
        {"type='Boolean'", "a: param = 0 '0.00' | '' 0..0 default 0 type 2 unit ''"},
        {"min='-2' max='5' default='9'", "a: param = 5 '5.00' | '' -2..5 default 9 type 2 unit ''"},
        {"max='abc' min='-1'", "a: param = 0 '0.00' | '' -1..0 default 0 type 2 unit ''"},
        {"max='12 dB'", "a: param = 0 '0.00' | '' 0..12 default 0 type 2 unit ''"},
        {"max='1e3'", "a: param = 0 '0.00' | '' 0..1000 default 0 type 2 unit ''"},
        {"max='nan' min='nan'", "a: param = 0 '0.00' | '' 0..0 default 0 type 2 unit ''"},
        {"unit='Hz' name='N' comment='C'", "a: param = 0 '0.00' | 'N' 0..0 default 0 type 2 unit 'Hz'"},
        {"type='enumeration' enum_values='x;y;z' default='1'",
         "a: param = 1 'y' | '' 0..2 default 1 type 1 unit ''"},
        {"type='enumeration' enum_values='x;y;z' min='5' default='6'",
         "a: param = 6 'y' | '' 5..7 default 6 type 1 unit ''"},
        {"type='enumeration' enum_values='x;y' min='5' max='9' default='9'",
         "a: param = 6 'y' | '' 5..6 default 9 type 1 unit ''"},
        {"type='enumeration' enum_values=''", "a: param = 0 '' | '' 0..0 default 0 type 1 unit ''"},
        {"type='enumeration' max='3' default='2'", "a: param = 2 '2' | '' 0..3 default 2 type 1 unit ''"},
        {"type='integer' enum_values='x;y' max='1'", "a: param = 0 '0' | '' 0..1 default 0 type 1 unit ''"},
    };
    for (const auto& row : rows)
    {
        CModelRig rig;
        EXPECT_EQ(LineOf(rig, std::string("<PARAM id='a' ") + row.attributes + "/>"), row.line)
            << row.attributes;
    }
}

TEST(ModelDescription, AnEnumerationOfAnotherSizeIsReported)
{
    const auto messages = [](const std::string& attributes)
    {
        CModelRig rig;
        rig.Build("<PARAM id='a' type='enumeration' " + attributes + "/>");
        return rig.TakeMessages();
    };
    EXPECT_THAT(messages("enum_values='x;y;z' max='2'"), IsEmpty());
    EXPECT_THAT(messages("enum_values='x;y;z'"), IsEmpty());
    EXPECT_THAT(
        messages("enum_values='x;y;z' min='1' max='2'"),
        Contains(
            "1: the number of values in the enumeration list is different from specified min/max range"));
}

TEST(ModelDescription, TheNamesOfAnEnumerationCanBeSet)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<PARAM id='a' type='enumeration' min='1' enum_values='x;y' default='2'/>"));
    EXPECT_EQ(rig.Text("a.enum_values"), "x;y");
    rig.Find<ICaptureString>("a.enum_values")->SetValue("up;down;left");
    EXPECT_THAT(rig.Lines(), Contains("a: param = 2 'down' | '' 1..2 default 2 type 1 unit ''"));
}

TEST(ModelDescription, CurvesHaveOneForEachAxis)
{
    CModelRig rig;
    EXPECT_EQ(
        LineOf(rig, "<CURVE id='a' name='N' x_type='integer' x_min='1' x_max='3' x_default='2' x_unit='s' "
                    "x_name='X' y_max='9' y_default='4' y_unit='V' y_name='Y' max='77' name_='no'/>"),
        "a: curve = 4 4 4 | 'N' x 'X' 1..3 default 2 type 1 unit 's' y 'Y' 0..9 default 4 type 2 unit 'V'");
}

TEST(ModelDescription, ANameThatIsTakenByNamesFailsTheElement)
{
    CModelRig rig;
    EXPECT_FALSE(
        rig.Build("<STRING id='a.enum_values'/><PARAM id='a' type='enumeration' enum_values='x;y'/>"));
    EXPECT_TRUE(rig.Has("a"));
}

} // namespace
} // namespace Mirel::SkinEngine
