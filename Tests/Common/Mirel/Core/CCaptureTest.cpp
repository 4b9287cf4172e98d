#include "Mirel/Core/CCapture.h"
#include "Support/CFunctionCommand.h"

#include <gtest/gtest.h>
#include <string>

using namespace Mirel::Core;
using Tests::CFunctionCommand;

namespace
{

/// Writes down begin and end with the mark that the listener found.
class CTrace
{
public:
    explicit CTrace(CCapture& capture_) : capture(capture_)
    {
        capture.GetBeginCaptureEventProvider().Connect(begin);
        capture.GetEndCaptureEventProvider().Connect(end);
        capture.GetChangedEventProvider().Connect(changed);
    }
    std::string text;

private:
    void Add(char event) { text += std::string(1, event) + (capture.IsCaptured() ? '1' : '0'); }

    CCapture& capture;
    CFunctionCommand begin{[this] { Add('b'); }};
    CFunctionCommand end{[this] { Add('e'); }};
    CFunctionCommand changed{[this] { Add('c'); }};
};

} // namespace

TEST(CCapture, IsFreeAtFirst)
{
    EXPECT_FALSE(CCapture().IsCaptured());
}

TEST(CCapture, ListenersSeeTheNewState)
{
    CCapture capture;
    const CTrace trace(capture);

    capture.BeginCapture();
    capture.EndCapture();

    EXPECT_EQ(trace.text, "b1e0");
}

TEST(CCapture, SecondBeginAndSecondEndDoNothing)
{
    CCapture capture;
    const CTrace trace(capture);

    capture.EndCapture();
    EXPECT_EQ(trace.text, "");

    capture.BeginCapture();
    capture.BeginCapture();
    EXPECT_EQ(trace.text, "b1");

    capture.EndCapture();
    capture.EndCapture();
    EXPECT_EQ(trace.text, "b1e0");
    EXPECT_FALSE(capture.IsCaptured());
}

TEST(CCapture, ListenerOfTheBeginMayEndTheCapture)
{
    CCapture capture;
    const CTrace trace(capture);
    CFunctionCommand release([&] { capture.EndCapture(); });
    capture.GetBeginCaptureEventProvider().Connect(release);

    capture.BeginCapture();

    EXPECT_EQ(trace.text, "b1e0");
}

TEST(CCapture, ChangeWhileHeldIsReportedByTheChangedEventAlone)
{
    CCapture capture;
    const CTrace trace(capture);

    capture.BeginCapture();
    capture.NotifyChanged();
    capture.EndCapture();

    EXPECT_EQ(trace.text, "b1c1e0");
}
