// Many parameters wired at random, rings included: what a set sets off ends, no listener is active twice at
// once, and nothing that goes leaves a connection behind, which the address sanitizer would report.

#include "Common/Mirel/DataModel/Objects/LinkRig.h"
#include "Mirel/DataModel/CCascadeShare.h"
#include "Mirel/DataModel/Objects/CCaptureParamConnection.h"
#include "Mirel/DataModel/Objects/CCaptureParamLink.h"
#include "Mirel/DataModel/Objects/CMultipleCaptureParamLink.h"
#include "Mirel/DataModel/Objects/ResponseCurves.h"
#include "Support/CFunctionCommand.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <random>
#include <utility>
#include <vector>

using namespace Mirel::DataModel;
using namespace Mirel::DataModel::Objects;
using Tests::CFunctionCommand;
using Tests::CLambdaFunction;
using Tests::CRangeParam;

namespace
{

/// Counts what runs, and finds out what runs inside itself.
class CActivity
{
public:
    class CScope
    {
    public:
        explicit CScope(CActivity& activity) : active(activity.active)
        {
            EXPECT_FALSE(std::exchange(*active, true));
            ++total;
        }
        CScope(const CScope&) = delete;
        CScope& operator=(const CScope&) = delete;
        ~CScope() { *active = false; }

    private:
        std::shared_ptr<bool> active; ///< May be all that is left of the link.
    };

    static inline int total = 0;

private:
    std::shared_ptr<bool> active = std::make_shared<bool>(false);
};

class CProbedLink : public CCaptureParamLink
{
public:
    void Update() override
    {
        const CActivity::CScope scope(activity);
        CCaptureParamLink::Update();
    }

private:
    CActivity activity;
};

/// A wire of any kind, and how to take a parameter from it.
struct SWire
{
    std::shared_ptr<void> link;
    std::function<void(ICaptureParam*)> release;
};

class CGraph
{
public:
    CGraph(int paramCount, int wireCount, unsigned seed) : random(seed)
    {
        for (int i = 0; i < paramCount; ++i)
        {
            const auto min = static_cast<float>(Pick(200)) - 100.0f;
            params.push_back(std::make_unique<CRangeParam>(min, min + static_cast<float>(Pick(100))));
        }
        // Connections come first and most links wait for a change: to be enabled in a dense graph starts a
        // cascade as long as any, and those of the sets are enough.
        for (int i = 0; i < wireCount; ++i)
        {
            AddWire(100 * i / wireCount);
        }
    }

    ~CGraph()
    {
        while (!params.empty())
        {
            RemoveParam();
        }
    }

    CGraph(const CGraph&) = delete;
    CGraph& operator=(const CGraph&) = delete;

    int Pick(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    bool Toss() { return Pick(2) == 0; }
    CRangeParam& PickParam() { return *params[static_cast<std::size_t>(Pick(GetParamCount()))]; }
    int GetParamCount() const { return static_cast<int>(params.size()); }
    int GetWireCount() const { return static_cast<int>(wires.size()); }

    /// A parameter goes as in a model: first from its links, then from the store.
    void RemoveParam()
    {
        const auto place = params.begin() + Pick(GetParamCount());
        for (const SWire& wire : wires)
        {
            wire.release(place->get());
        }
        params.erase(place);
    }

    void RemoveWire() { wires.erase(wires.begin() + Pick(GetWireCount())); }

    void SetAny()
    {
        CRangeParam& param = PickParam();
        const float span = param.GetInfo().GetMax() - param.GetInfo().GetMin();
        param.SetValue(param.GetInfo().GetMin() + span * static_cast<float>(Pick(1200) - 100) / 1000.0f);

        // What has settled does not move again for the same value.
        const int before = CActivity::total;
        param.SetValue(param.GetValue());
        param.SetValue(std::numeric_limits<float>::quiet_NaN());
        EXPECT_EQ(CActivity::total, before);
    }

    void CaptureAny()
    {
        CRangeParam& param = PickParam();
        param.BeginCapture();
        param.EndCapture();
        EXPECT_FALSE(param.IsCaptured());
    }

    void CheckValues() const
    {
        for (const auto& param : params)
        {
            EXPECT_FALSE(std::isnan(param->GetValue()));
            EXPECT_LE(param->GetValue(), std::max(0.0f, param->GetInfo().GetMax()));
            EXPECT_GE(param->GetValue(), std::min(0.0f, param->GetInfo().GetMin()));
        }
    }

private:
    void AddWire(int percent)
    {
        if (percent < 15)
        {
            AddConnection();
        }
        else if (percent < 25)
        {
            AddMultipleLink();
        }
        else
        {
            AddLink();
        }
    }

    void AddLink()
    {
        auto link = std::make_shared<CProbedLink>();
        link->SetOnModifyOnly(Pick(50) != 0);
        link->SetNormalized(Toss());
        link->SetReverse(Toss());
        link->SetDiff(Pick(4) == 0);
        link->SetResponse(GetResponsePair(Pick(responseCurveCount)).function, false);
        link->SetSource(&PickParam());
        link->SetTarget(&PickParam());
        link->Enable(true);
        wires.push_back({link, [link = link.get()](ICaptureParam* param)
                         {
                             if (link->GetSource() == param)
                             {
                                 link->SetSource(nullptr);
                             }
                             if (link->GetTarget() == param)
                             {
                                 link->SetTarget(nullptr);
                             }
                         }});
    }

    void AddConnection()
    {
        auto link = std::make_shared<CCaptureParamConnection>();
        link->SetNormalized(Toss());
        link->SetReverse(Toss());
        link->SetDiff(Pick(4) == 0);
        link->SetAllowsFeedback(Toss());
        link->SetResponse(GetResponsePair(Pick(responseCurveCount)));
        link->SetFirst(&PickParam());
        link->SetSecond(&PickParam());
        link->Enable(true);
        wires.push_back({link, [link = link.get()](ICaptureParam* param)
                         {
                             if (link->GetFirst() == param)
                             {
                                 link->SetFirst(nullptr);
                             }
                             if (link->GetSecond() == param)
                             {
                                 link->SetSecond(nullptr);
                             }
                         }});
    }

    void AddMultipleLink()
    {
        auto link = std::make_shared<CMultipleCaptureParamLink>();
        link->SetFunction(static_cast<EMuxFunction>(Pick(11)));
        link->SetNormalized(Toss());
        link->SetReverse(Toss());
        link->SetOnModifyOnly(true);
        for (int i = 0; i < 3; ++i)
        {
            link->AddSource(&PickParam());
            link->AddTarget(&PickParam());
        }
        link->Enable(true);
        wires.push_back({link, [link = link.get()](ICaptureParam* param)
                         {
                             link->RemoveSource(param);
                             link->RemoveTarget(param);
                         }});
    }

    std::mt19937 random;
    std::vector<std::unique_ptr<CRangeParam>> params;
    std::vector<SWire> wires;
};

} // namespace

TEST(LinkGraph, RandomSetsSettle)
{
    CGraph graph(1000, 3000, 1);
    for (int i = 0; i < 10; ++i)
    {
        graph.SetAny();
        graph.CaptureAny();
    }
    graph.CheckValues();
}

TEST(LinkGraph, ARemovedObjectLeavesNoConnection)
{
    CGraph graph(1000, 3000, 2);
    while (graph.GetParamCount() > 10)
    {
        for (int i = 0; i < 20 && graph.GetParamCount() > 10; ++i)
        {
            graph.RemoveParam();
        }
        for (int i = 0; i < 60 && graph.GetWireCount() > 10; ++i)
        {
            graph.RemoveWire();
        }
        graph.CaptureAny();
        if (graph.GetParamCount() < 500)
        {
            graph.SetAny();
        }
    }
    graph.CheckValues();
}

TEST(LinkGraph, WiresMayGoWhileTheyAreAtWork)
{
    CGraph graph(100, 300, 3);
    CFunctionCommand remove(
        [&]
        {
            if (graph.GetWireCount() > 0)
            {
                graph.RemoveWire();
            }
        });
    std::vector<CRangeParam*> watched;
    for (int i = 0; i < 20; ++i)
    {
        watched.push_back(&graph.PickParam());
        watched.back()->GetValueChangedEventProvider().Connect(remove);
        watched.back()->GetBeginCaptureEventProvider().Connect(remove);
    }
    for (int i = 0; i < 200; ++i)
    {
        graph.SetAny();
        graph.CaptureAny();
    }
    EXPECT_EQ(graph.GetWireCount(), 0);
    for (CRangeParam* param : watched)
    {
        param->GetValueChangedEventProvider().Disconnect(&remove);
        param->GetBeginCaptureEventProvider().Disconnect(&remove);
    }
}

TEST(LinkGraph, ARingOfDiffLinksEnds)
{
    CRangeParam params[] = {{0.0f, 1e6f}, {0.0f, 1e6f}, {0.0f, 1e6f}, {0.0f, 1e6f}};
    CProbedLink links[4];
    for (int i = 0; i < 4; ++i)
    {
        links[i].SetDiff(true);
        links[i].SetSource(&params[i]);
        links[i].SetTarget(&params[(i + 1) % 4]);
        links[i].Enable(true);
    }
    CActivity::total = 0;
    params[0].SetValue(5.0f);
    // Once around: the movement comes back to its origin, whose own link is still active.
    EXPECT_EQ(CActivity::total, 4);
    EXPECT_EQ(params[0].GetValue(), 10.0f);
    EXPECT_EQ(params[3].GetValue(), 5.0f);
}

TEST(LinkGraph, PathsThatPartAndMeetAgainEndInTime)
{
    // Each stage doubles the number of paths: the last parameter would be written 2 to the 40 times.
    constexpr int stages = 40;
    std::vector<std::unique_ptr<CRangeParam>> params;
    std::vector<std::unique_ptr<CProbedLink>> links;
    params.push_back(std::make_unique<CRangeParam>(0.0f, 1e6f));
    for (int i = 0; i < stages; ++i)
    {
        params.push_back(std::make_unique<CRangeParam>(0.0f, 1e6f));
        for (const float slope : {1.0f, 0.75f})
        {
            links.push_back(std::make_unique<CProbedLink>());
            links.back()->SetOnModifyOnly(true);
            links.back()->SetResponse(new CLambdaFunction([slope](float x) { return slope * x + 1.0f; }),
                                      true);
            links.back()->SetSource(params[params.size() - 2].get());
            links.back()->SetTarget(params.back().get());
            links.back()->Enable(true);
        }
    }
    CActivity::total = 0;
    CCascadeShare::TakeRefusal();
    params.front()->SetValue(1000.0f);
    EXPECT_TRUE(CCascadeShare::TakeRefusal());
    EXPECT_LT(CActivity::total, 100000);
}
