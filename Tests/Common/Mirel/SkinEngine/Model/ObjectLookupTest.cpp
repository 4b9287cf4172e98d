#include "Mirel/SkinEngine/Model/ObjectLookup.h"

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"

#include <gtest/gtest.h>

#include <utility>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;

struct ObjectLookup : testing::Test
{
    ObjectLookup()
    {
        model.AddParam("param", new CCaptureParam, objectItself, true);
        model.AddConstParam("fixed", new CCaptureParam, objectItself, true);
    }

    template <class I>
    void ExpectWrongKind(const char* message)
    {
        log.Clear();
        EXPECT_EQ(ResolveObject<I>(model.GetObjects(), "param"), nullptr);
        ASSERT_EQ(log.GetMessages().size(), 1U);
        EXPECT_EQ(log.GetMessages()[0].text, message);
        EXPECT_EQ(log.GetMessages()[0].kind, CoreUtilities::CMessageKind::Error);
    }

    CoreUtilities::CMemMessageLog log;
    CSkinModel model{&log};
};

TEST_F(ObjectLookup, AWritableObjectIsFoundInBothForms)
{
    auto* param = ResolveObject<ICaptureParam>(model.GetObjects(), "param");
    ASSERT_NE(param, nullptr);
    EXPECT_EQ(ResolveObject<IConstCaptureParam>(model.GetObjects(), "param"),
              static_cast<IConstCaptureParam*>(param));
    EXPECT_FALSE(log.HasMessages());
}

TEST_F(ObjectLookup, AReadOnlyObjectIsFoundForReadingAlone)
{
    EXPECT_NE(ResolveObject<IConstCaptureParam>(model.GetObjects(), "fixed"), nullptr);
    EXPECT_EQ(ResolveObject<ICaptureParam>(model.GetObjects(), "fixed"), nullptr);
    ASSERT_EQ(log.GetMessages().size(), 1U);
    EXPECT_EQ(log.GetMessages()[0].text, "fixed: Unknown param identifier (wrong object type).");
}

TEST_F(ObjectLookup, AnUnknownIdentifierIsReported)
{
    EXPECT_EQ(ResolveObject<IConstCaptureParam>(model.GetObjects(), "nobody"), nullptr);
    ASSERT_EQ(log.GetMessages().size(), 1U);
    EXPECT_EQ(log.GetMessages()[0].text, "nobody: Unknown identifier (object does not exist).");
    EXPECT_EQ(log.GetMessages()[0].kind, CoreUtilities::CMessageKind::Error);
}

TEST_F(ObjectLookup, ALinkOnASubObjectThatNobodyWantedFindsNothing)
{
    EXPECT_EQ(ResolveObject<IConstCaptureParam>(model.GetObjects(), "param.min"), nullptr);
    ASSERT_EQ(log.GetMessages().size(), 1U);
    EXPECT_EQ(log.GetMessages()[0].text, "param.min: Unknown identifier (object does not exist).");
}

TEST_F(ObjectLookup, AWrongKindIsReportedWithTheExpectedOne)
{
    ExpectWrongKind<IConstCaptureCurve>("param: Unknown curve identifier (wrong object type).");
    ExpectWrongKind<ICaptureSurface>("param: Unknown surface identifier (wrong object type).");
    ExpectWrongKind<ICaptureString>("param: Unknown string identifier (wrong object type).");
}

TEST_F(ObjectLookup, FindingWithoutNeedIsSilent)
{
    EXPECT_EQ(FindObject<IConstCaptureCurve>(model.GetObjects(), "param"), nullptr);
    EXPECT_EQ(FindObject<IConstCaptureCurve>(std::as_const(model).GetObjects(), "nobody"), nullptr);
    EXPECT_NE(FindObject<IConstCaptureParam>(std::as_const(model).GetObjects(), "param"), nullptr);
    EXPECT_FALSE(log.HasMessages());
}

} // namespace
} // namespace Mirel::SkinEngine
