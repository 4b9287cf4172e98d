#include "ParserRig.h"

#include <memory>

namespace
{

using namespace Tests;
using Mirel::SkinEngine::IParsedTemplate;

/// A rig with an element LIST that records its content, and keeps it, or replays it at once.
class CRecordingRig : public CParserRig
{
public:
    explicit CRecordingRig(bool replays)
    {
        OnStart("LIST",
                [this](const CNamedAttributes& attributes)
                {
                    parser.StartRecording(new CNamedAttributes(attributes));
                    return true;
                });
        OnEnd("LIST",
              [this, replays]
              {
                  void* word = nullptr;
                  recorded.reset(parser.StopRecording(word));
                  context.reset(static_cast<CNamedAttributes*>(word));
                  if (replays && recorded != nullptr)
                  {
                      const std::unique_ptr<IParsedTemplate> body = std::move(recorded);
                      EXPECT_EQ(body->Instantiate(Attributes({{"item_id", "list[*]"}}), parser), nullptr);
                  }
                  return true;
              });
    }

    std::unique_ptr<IParsedTemplate> recorded;
    std::unique_ptr<CNamedAttributes> context;
};

TEST(Recording, KeepsTheElementsFromTheHandlers)
{
    CRecordingRig rig(false);
    EXPECT_TRUE(rig.Parse("<S><LIST id='l'><A x='$item_id$'><B/></A></LIST><C/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><LIST id='l'></LIST><C></C></S>");
    ASSERT_NE(rig.recorded, nullptr);
    EXPECT_STREQ(rig.context->Get("id"), "l");

    CMemMessageLog log;
    CElementTrace trace;
    CSkinParser second(log);
    second.SetElementListener(&trace);
    EXPECT_EQ(rig.recorded->Instantiate(Attributes({{"item_id", "l[0]"}}), second), nullptr);
    EXPECT_EQ(rig.recorded->Instantiate(Attributes({{"item_id", "l[1]"}}), second), nullptr);
    EXPECT_EQ(trace.text, "<A x='l[0]'><B></B></A><A x='l[1]'><B></B></A>");
}

TEST(Recording, HoldsFinalElements)
{
    CRecordingRig rig(false);
    EXPECT_TRUE(
        rig.Parse("<S><VARIABLE id='v' value='1'/><DEFINE><D base_type='A' d='2'/></DEFINE>"
                  "<TEMPLATE id='T'><BOX><D x='$v$ $n$ $item_id$'/><TEMPLATE_INNER_CONTENT/></BOX></TEMPLATE>"
                  "<LIST><T n='3'><E/></T></LIST></S>"));
    CMemMessageLog log;
    CElementTrace trace;
    CSkinParser second(log);
    second.SetElementListener(&trace);
    EXPECT_EQ(rig.recorded->Instantiate(Attributes({{"item_id", "i"}}), second), nullptr);
    EXPECT_EQ(trace.text, "<BOX><A base_type='A' d='2' x='1 3 i'></A><E></E></BOX>");
}

TEST(Recording, OfRepeatsIsReplayedWithTheItem)
{
    CRecordingRig rig(true);
    EXPECT_TRUE(rig.Parse("<S><LIST><REPEAT count='2'><A x='$item_id$$index$'/></REPEAT></LIST></S>"));
    EXPECT_EQ(rig.trace.text, "<S><LIST><A x='list[*]0'></A><A x='list[*]1'></A></LIST></S>");
}

TEST(Recording, ReplaysListsInsideLists)
{
    CRecordingRig rig(true);
    EXPECT_TRUE(rig.Parse("<S><LIST><A/><LIST><B x='$item_id$'/></LIST></LIST><C/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages());
    EXPECT_TRUE(rig.trace.text.find("<B x='list[*]'></B>") != std::string::npos) << rig.trace.text;
    EXPECT_TRUE(rig.trace.text.ends_with("<C></C></S>")) << rig.trace.text;
}

TEST(Recording, OfNothingIsEmpty)
{
    CRecordingRig rig(false);
    EXPECT_TRUE(rig.Parse("<S><LIST/></S>"));
    ASSERT_NE(rig.recorded, nullptr);
    CMemMessageLog log;
    CSkinParser second(log);
    EXPECT_EQ(rig.recorded->Instantiate({}, second), nullptr);
    EXPECT_TRUE(log.GetMessages().empty());
}

TEST(Recording, SecondStartDoesNothing)
{
    CMemMessageLog log;
    CSkinParser parser(log);
    int first = 0;
    int second = 0;
    parser.StartRecording(&first);
    parser.StartRecording(&second);
    void* context = nullptr;
    const std::unique_ptr<IParsedTemplate> recorded(parser.StopRecording(context));
    EXPECT_NE(recorded, nullptr);
    EXPECT_EQ(context, &first);
    EXPECT_EQ(parser.StopRecording(context), nullptr);
}

TEST(Recording, OfABrokenFileGivesItsContextBack)
{
    CRecordingRig rig(false);
    EXPECT_FALSE(rig.Parse("<S><LIST id='l'><A>"));
    void* context = nullptr;
    const std::unique_ptr<IParsedTemplate> recorded(rig.parser.StopRecording(context));
    EXPECT_NE(recorded, nullptr);
    const std::unique_ptr<CNamedAttributes> owned(static_cast<CNamedAttributes*>(context));
    EXPECT_STREQ(owned->Get("id"), "l");
    EXPECT_TRUE(rig.Parse("<S><A/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><A></A></S>");
}

} // namespace
