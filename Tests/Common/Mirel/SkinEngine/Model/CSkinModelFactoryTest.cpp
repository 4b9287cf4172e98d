#include "Mirel/SkinEngine/Model/CSkinModelFactory.h"

#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/IConstAction.h"
#include "ModelRig.h"
#include "Support/CommaLocale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using Tests::CModelRig;

constexpr const char* twoParams = "<PARAM id='a' max='10' default='4'/><PARAM id='b' max='100'/>";
constexpr const char* failed = "0: Fatal error: model parsing failed";

TEST(CSkinModelFactory, TellsItsPasses)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build(twoParams, false));
    EXPECT_THAT(rig.TakeMessages(true),
                ElementsAre("2: Pre-Parsing the model...", "2: Parsing the model...",
                            "2: Pre-Linking objects (managing dynamic collections)...",
                            "2: Setting up collections count...", "2: Linking objects...",
                            "2: Storing objects information...", "2: Cleaning..."));
    EXPECT_TRUE(rig.model.GetEnable().IsEnabled());
}

TEST(CSkinModelFactory, AFileThatIsNotThereFails)
{
    CModelRig rig;
    EXPECT_FALSE(rig.factory.Parse("/nowhere/at.all", false));
    EXPECT_THAT(rig.TakeMessages(), Contains(failed));
    EXPECT_FALSE(rig.factory.Parse("/nowhere/at.all", true));
    EXPECT_THAT(rig.TakeMessages(), Contains(failed));
}

TEST(CSkinModelFactory, TheRootElementIsModel)
{
    CModelRig rig;
    EXPECT_FALSE(rig.BuildFile("<SKIN/>"));
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("0: Invalid file: root element must be 'MODEL'", failed));
}

TEST(CSkinModelFactory, VariablesAreThereInEveryPass)
{
    CModelRig rig;
    rig.factory.SetVariable("NAME", "a");
    EXPECT_TRUE(rig.Build("<PARAM id='$NAME$' exposed='true'/>", false));
    EXPECT_TRUE(rig.Has("a"));
    EXPECT_FALSE(rig.Has("$NAME$"));
}

TEST(CSkinModelFactory, WhatNobodyWantsIsNotBuilt)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<PARAM id='a'/><PARAM id='b' persistent='true'/><PARAM id='c' exposed='true'/>"
                          "<PARAM id='d'/><PARAM id='e'/><PARAM_LINK from='d' to='e'/>",
                          false));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_FALSE(rig.Has("a"));
    for (const char* id : {"b", "c", "d", "e"})
    {
        EXPECT_TRUE(rig.Has(id)) << id;
        EXPECT_FALSE(rig.Has(std::string(id) + ".min")) << id;
    }
}

TEST(CSkinModelFactory, WithoutAPrePassAllIsBuilt)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<PARAM id='a'/>", true));
    EXPECT_TRUE(rig.Has("a"));
    EXPECT_TRUE(rig.Has("a.min"));
}

TEST(CSkinModelFactory, AfterAPrePassOfItsClientAllIsBuilt)
{
    CModelRig rig;
    EXPECT_TRUE(rig.PreParse("<PARAM id='a'/>"));
    EXPECT_TRUE(rig.Build("<PARAM id='a'/>", false));
    EXPECT_TRUE(rig.Has("a"));
    EXPECT_THAT(rig.TakeMessages(true), Contains("2: Pre-Parsing the model...").Times(1));
}

TEST(CSkinModelFactory, AFailedPrePassEndsTheParse)
{
    CModelRig rig;
    EXPECT_FALSE(rig.Build("<PARAM id='a' exposed='true'/><FORMULA_PARAM id='f' formula='1+'/>", false));
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("0: Cannot create param, invalid formula.", failed));
    EXPECT_FALSE(rig.Has("a"));
}

struct SMark
{
    const char* element;
    std::vector<const char*> wanted;
    std::vector<const char*> unwanted;
};

TEST(CSkinModelFactory, ThePrePassMarksWhatElementsReferTo)
{
    const std::vector<SMark> marks = {
        {"<PARAM_LINK from='a' to='b' id='l'/>", {"a", "b"}, {"l", "l.enabled"}},
        {"<PARAM_TO_STRING_LINK from='a' to='b'/>", {"a", "b"}, {}},
        {"<CURVE_LINK from='a' to='b'/>", {"a", "b"}, {}},
        {"<STRING_LINK from='a' to='b'/>", {"a", "b"}, {}},
        {"<PARAM_ANIMATED_LINK from='a' to='b'/>", {"a", "b"}, {}},
        {"<PARAM_MULTI_LINK from='a;b' to='c;d'/>", {"a", "b", "c", "d"}, {"a;b"}},
        {"<CURVE_MULTI_LINK from='a;b' to='c;d'/>", {"a", "b", "c", "d"}, {}},
        {"<STRING_MULTI_LINK from='a;b' to='c;d'/>", {"a", "b", "c", "d"}, {}},
        {"<PARAM_CONNECTION id1='a' id2='b' id='c'/>", {"a", "b"}, {"c"}},
        {"<PARAM id='a'/><CURVE id='b'/><STRING id='c'/>", {}, {"a", "b", "c"}},
        {"<PARAM id='a' persistent='true'/><CURVE id='b' exposed='true'/><STRING id='c' persistent='true'/>",
         {"a", "b", "c"},
         {}},
        {"<PARAM id='a' persistent='1'/>", {}, {"a"}},
        {"<FUNCTION_INVOKE_ACTION id='a' function='OpenUrl' arg_url='b'/>", {"b"}, {"a"}},
        {"<FUNCTION_INVOKE_ACTION id='a' function='OpenUrl' arg_url=\"'b'\"/>", {}, {"a", "b", "'b'"}},
        {"<FUNCTION_INVOKE_ACTION id='a' function='Other' arg_url='b'/>", {}, {"b"}},
        {"<PARAM_ANIMATOR id='a' param_id='b'/>", {"b"}, {"a"}},
        {"<CURVE_FROM_PARAM_OVER_TIME id='a' param_id='b' exposed='true'/>", {"a", "b"}, {}},
        {"<SURFACE_FROM_CURVE_OVER_TIME id='a' curve_id='b'/>", {"b"}, {"a"}},
        {"<CURVE_VALUE_PARAM id='a' curve_id='b' x_param_id='c' persistent='true'/>", {"a", "b", "c"}, {}},
        {"<SURFACE_VALUE_PARAM id='a' surface_id='b' x_param_id='c' y_param_id='d'/>",
         {"b", "c", "d"},
         {"a"}},
        {"<FORMULA_PARAM id='a' formula='b+c(d)+e(f,1)'/>", {"b", "c", "d", "e", "f"}, {"a"}},
        {"<FORMULA_CURVE id='a' formula='b*t' variable='t' exposed='true'/>", {"a", "b"}, {"t"}},
        {"<FORMULA_SURFACE id='a' formula='b*x*y'/>", {"b"}, {"a", "x", "y"}},
        {"<PERSISTENT_PARAMS param_ids='a;b'/><PERSISTENT_OBJECTS object_ids='c'/>", {"a", "b", "c"}, {}},
        {"<EXPOSED_OBJECTS object_ids='a;b'/>", {"a", "b"}, {}},
        {"<COLLECTION id='c'><PARAM id='$item_id$.v' exposed='true'/></COLLECTION>",
         {"c[0].v", "c[12].v"},
         {"c", "c.count", "c[0].w", "c[0].v.min"}},
        {"<COLLECTION id='c' item_name='i'><COLLECTION id='$i$.d' item_name='j'>"
         "<PARAM_LINK from='$j$.a' to='$i$.b'/></COLLECTION></COLLECTION>",
         {"c[0].d[1].a", "c[7].b"},
         {"c[0].e", "d[1].a"}},
        {"<FOREACH collection_id='c;d' id='f' item_name='i'><PARAM_LINK from='$c_i$.a' to='$d_i$.b'/>"
         "<PARAM_LINK from='$i$.c' to='e'/></FOREACH>",
         {"c[0].a", "d[0].b", "f[3].c", "e"},
         {"c[0].b", "f.count"}},
    };
    for (const SMark& mark : marks)
    {
        CModelRig rig;
        EXPECT_TRUE(rig.PreParse(mark.element)) << mark.element;
        EXPECT_THAT(rig.TakeMessages(), IsEmpty()) << mark.element;
        for (const char* id : mark.wanted)
        {
            EXPECT_TRUE(rig.model.GetExposure().IsWanted(id)) << mark.element << " " << id;
        }
        for (const char* id : mark.unwanted)
        {
            EXPECT_FALSE(rig.model.GetExposure().IsWanted(id)) << mark.element << " " << id;
        }
    }
}

struct SFailure
{
    const char* element;
    const char* message;
    bool fails; ///< Whether the parse fails.
};

void ExpectFailures(const std::vector<SFailure>& failures, bool preParse)
{
    for (const SFailure& failure : failures)
    {
        CModelRig rig;
        const std::string body = std::string(twoParams) + failure.element;
        EXPECT_EQ(preParse ? rig.PreParse(body) : rig.Build(body), !failure.fails) << failure.element;
        const auto messages = rig.TakeMessages();
        ASSERT_FALSE(messages.empty()) << failure.element;
        EXPECT_EQ(messages[0], failure.message) << failure.element;
        EXPECT_EQ(messages.size(), failure.fails && !preParse ? 2U : 1U) << failure.element;
    }
}

TEST(CSkinModelFactory, ThePrePassReportsWhatIsMissing)
{
    ExpectFailures({{"<PARAM_LINK to='a'/>", "0: PARAM_LINK: invalid link, missing from attribute.", false},
                    {"<PARAM_LINK from='a'/>", "0: PARAM_LINK: invalid link, missing to attribute.", false},
                    {"<STRING_LINK from='a'/>", "0: STRING_LINK: invalid link, missing to attribute.", false},
                    {"<PARAM_CONNECTION id1='a'/>",
                     "0: PARAM_CONNECTION: invalid connection, missing id2 attribute.", false},
                    {"<PARAM_CONNECTION id2='a'/>",
                     "0: PARAM_CONNECTION: invalid connection, missing id1 attribute.", false},
                    {"<FORMULA_PARAM formula='%'/>", "0: Cannot create param, invalid formula.", true},
                    {"<FORMULA_CURVE/>", "0: Cannot create curve, invalid formula.", true},
                    {"<FORMULA_SURFACE formula='x('/>", "0: Cannot create surface, invalid formula.", true}},
                   true);
}

TEST(CSkinModelFactory, EveryFailureHasItsMessage)
{
    ExpectFailures(
        {
            {"<PARAM/>", "0: Cannot create parameter, id field is empty.", true},
            {"<PARAM id=''/>", "0: Cannot create parameter, id field is empty.", true},
            {"<CURVE/>", "0: Cannot create curve, id field is empty.", true},
            {"<STRING/>", "0: Cannot create string, id field is empty.", true},
            {"<FORMULA_PARAM formula='1'/>", "0: Cannot create param, id field is empty.", true},
            {"<FORMULA_CURVE formula='1'/>", "0: Cannot create curve, id field is empty.", true},
            {"<FORMULA_SURFACE formula='1'/>", "0: Cannot create surface, id field is empty.", true},
            {"<CURVE_FROM_PARAM_OVER_TIME id='c'/>", "0: Cannot create curve, an id field is missing.", true},
            {"<CURVE_FROM_PARAM_OVER_TIME param_id='a'/>", "0: Cannot create curve, an id field is missing.",
             true},
            {"<SURFACE_FROM_CURVE_OVER_TIME id='c'/>", "0: Cannot create surface, an id field is missing.",
             true},
            {"<CURVE_VALUE_PARAM/>", "0: Cannot create param, id field is empty.", true},
            {"<SURFACE_VALUE_PARAM/>", "0: Cannot create param, id field is empty.", true},
            {"<PARAM_ANIMATOR/>", "0: Cannot create parameter animator, id field is empty.", true},
            {"<FUNCTION_INVOKE_ACTION/>", "0: Cannot create action, id field is empty.", true},
            {"<FUNCTION_INVOKE_ACTION id='c'/>", "0: Cannot create action, 'function' field is empty.", true},
            {"<FUNCTION_INVOKE_ACTION id='c' function='Quit'/>", "0: Quit: unkown function", true},
            {"<FUNCTION_INVOKE_ACTION id='c' function='OpenUrl'/>",
             "0: Cannot create action, 'file_name' field is empty.", true},
            {"<COLLECTION/>", "0: Cannot create collection, id field is empty.", true},
            {"<FOREACH/>", "0: Cannot create \"foreach\" collection, collection_id field is empty.", true},
            {"<FORMULA_PARAM id='c' formula='1+'/>", "0: Cannot create param, invalid formula.", true},
            {"<FORMULA_CURVE id='c' formula='5%2'/>", "0: Cannot create curve, invalid formula.", true},
            {"<FORMULA_SURFACE id='c' formula=''/>", "0: Cannot create surface, invalid formula.", true},
            {"<PARAM_LINK from='a' to='b' formula='y'/>", "0: Cannot create curve for link, invalid formula.",
             true},
            {"<PARAM id='a'/>", "0: 'a' : this object identifier already exists, use another identifier.",
             true},
            {"<PARAM_LINK from='a' to='c'/>", "0: c: Unknown identifier (object does not exist).", true},
            {"<CURVE_LINK from='a' to='c'/><CURVE id='c'/>",
             "0: a: Unknown curve identifier (wrong object type).", true},
            {"<FOREACH collection_id='c'/>", "0: c: Unknown identifier (object does not exist).", true},
            {"<FOREACH collection_id='a'/>", "0: a: Unknown collection identifier (wrong object type).",
             true},
            {"<PERSISTENT_PARAMS param_ids='c'/>",
             "1: c: cannot make object persistent (already persistent or unknown object).", false},
            {"<PERSISTENT_PARAMS param_ids='a;a'/>",
             "1: a: cannot make object persistent (already persistent or unknown object).", false},
            {"<EXPOSED_OBJECTS object_ids='c'/>",
             "1: c: cannot expose object (already exposed or unknown object).", false},
            {"<PARAM id='c' type='enumeration' max='3' enum_values='x;y'/>",
             "1: the number of values in the enumeration list is different from specified min/max range",
             false},
            {"<STRING id='s'/><PARAM_TO_STRING_LINK from='a' to='s' value_format='.2x'/>",
             "1: PARAM_TO_STRING_LINK, '.2x' : Invalid value format. Using default.", false},
        },
        false);
}

TEST(CSkinModelFactory, AFailedElementDoesNotStopTheWalk)
{
    CModelRig rig;
    EXPECT_FALSE(
        rig.Build("<PARAM/><PARAM id='a' default='1' max='2'/><PARAM_LINK from='x' to='a'/><PARAM id='b'/>"));
    EXPECT_FLOAT_EQ(rig.Value("a"), 1);
    EXPECT_TRUE(rig.Has("b"));
    EXPECT_TRUE(rig.model.GetEnable().IsEnabled());
}

TEST(CSkinModelFactory, AFileThatBreaksOffLeavesNothingToDo)
{
    CModelRig rig;
    EXPECT_FALSE(rig.BuildFile("<MODEL><PARAM id='a'/><COLLECTION id='c'><PARAM id='$item_id$'/>"));
    EXPECT_FALSE(rig.BuildFile("<MODEL><COLLECTION id='c'><PARAM id='$item_id$'/>", false));
    rig.model.Clear();
    EXPECT_TRUE(rig.BuildFile("<MODEL><PARAM id='b'/></MODEL>"));
    EXPECT_TRUE(rig.Has("b"));
}

TEST(CSkinModelFactory, ASecondModelElementIsRefused)
{
    CModelRig rig;
    EXPECT_FALSE(rig.Build("<PARAM id='a'/><MODEL/><PARAM id='b' max='1'/><PARAM_LINK from='a' to='b'/>"));
    EXPECT_THAT(rig.TakeMessages(),
                ElementsAre("0: Invalid file: 'MODEL' is reserved for root element", failed));
    EXPECT_TRUE(rig.Has("b"));
}

TEST(CSkinModelFactory, NumbersHaveAPointInEveryLocale)
{
    const Tests::CCommaLocale comma;
    CModelRig rig;
    EXPECT_TRUE(rig.Build(
        "<PARAM id='a' max='1.5' default='1.25'/>"
        "<COLLECTION id='c' count='1'><PARAM id='$item_id$' max='1.5' default='1.25'/></COLLECTION>"));
    EXPECT_FLOAT_EQ(rig.Value("a"), 1.25f);
    EXPECT_FLOAT_EQ(rig.Value("c[0]"), 1.25f);
    rig.Param("c.count").SetValue(2);
    EXPECT_FLOAT_EQ(rig.Value("c[1]"), 1.25f);
}

TEST(CSkinModelFactory, AliveTellsWhetherTheModelLives)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build(""));
    const auto* alive = rig.Find<IConstCaptureParam>("alive");
    ASSERT_NE(alive, nullptr);
    EXPECT_EQ(rig.Find<ICaptureParam>("alive"), nullptr);
    EXPECT_FLOAT_EQ(alive->GetValue(), 1);
    rig.model.GetEnable().Enable(false);
    EXPECT_FLOAT_EQ(alive->GetValue(), 0);
}

TEST(CSkinModelFactory, TheUrlOfAnActionMayBeMissingItsOpener)
{
    Tests::CModelRig rig;
    CSkinModel model;
    CSkinModelFactory factory(rig.parser, rig.log, model);
    rig.folder.Write("test.model",
                     "<MODEL><FUNCTION_INVOKE_ACTION id='a' function='OpenUrl' arg_url=\"'u'\"/></MODEL>");
    EXPECT_TRUE(factory.Parse(rig.folder.GetPath("test.model").c_str(), false));
    FindObject<IConstAction>(model.GetObjects(), "a")->Execute();
    EXPECT_THAT(rig.opener.urls, IsEmpty());
}

TEST(CSkinModelFactory, AModelOfTooManyElementsIsCutWithOneMessage)
{
    CModelRig rig;
    EXPECT_FALSE(rig.Build("<REPEAT count='140000'><PARAM id='a'/></REPEAT>", false) &&
                 rig.Build("<REPEAT count='140000'><EXPOSED_OBJECTS/></REPEAT>"));
    EXPECT_THAT(rig.TakeMessages(),
                Contains("0: The model has too many elements: the rest is left out.").Times(1));
}

} // namespace
} // namespace Mirel::SkinEngine
