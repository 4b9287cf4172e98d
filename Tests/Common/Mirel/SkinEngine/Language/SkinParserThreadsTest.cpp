#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "ParserRig.h"

#include <atomic>
#include <cstdlib>
#include <thread>

namespace
{

using namespace Tests;

/// A skin with something of everything, and what becomes of it.
constexpr const char* skin =
    "<S><INCLUDE file='part.xml'/><VARIABLE id='v' formula='3/2'/>"
    "<DEFINE><D base_type='BOX' a='1'/></DEFINE><T><REPEAT count='1+1'><D x='$index$'/></REPEAT></T></S>";
constexpr const char* part =
    "<P><TEMPLATE id='T'><ROW><TEMPLATE_INNER_CONTENT/><A v='$v$'/></ROW></TEMPLATE></P>";
constexpr const char* expanded =
    "<S><P></P><ROW><BOX a='1' base_type='BOX' x='0'></BOX><BOX a='1' base_type='BOX' x='1'></BOX>"
    "<A v='1.5'></A></ROW></S>";

TEST(SkinParserThreads, ParsersOnFourThreadsDoNotMeet)
{
    const CTemporaryFolder folder;
    folder.Write("skin.xml", skin);
    folder.Write("part.xml", part);
    const std::string path = folder.GetPath("skin.xml");
    std::atomic<int> wrong = 0;
    const auto parse = [&]
    {
        constexpr int parses = 1000;
        for (int i = 0; i < parses; ++i)
        {
            CMemMessageLog log;
            CElementTrace trace;
            CSkinParser first(log);
            CSkinParser second(log);
            first.SetElementListener(&trace);
            const bool parsed = first.ParseFile(path.c_str()) && second.ParseFile(path.c_str());
            if (!parsed || trace.text != expanded || log.HasMessages(0) || log.HasMessages(1))
            {
                ++wrong;
            }
        }
    };
    constexpr int threadCount = 4;
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int i = 0; i < threadCount; ++i)
    {
        threads.emplace_back(parse);
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    EXPECT_EQ(wrong, 0);
}

} // namespace
