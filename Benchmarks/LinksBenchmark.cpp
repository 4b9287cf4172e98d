// From the set of a parameter to the last listener behind a chain of links, beside a chain of event providers
// that hand on a notification and nothing else.

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/CCaptureParamLink.h"
#include "Support/Contest.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <utility>
#include <vector>

using namespace Mirel::Core;
using namespace Mirel::DataModel::Objects;

namespace
{

constexpr int batch = 100; ///< Short enough to pass between the interruptions of a busy machine.

class CCounter : public ICommand
{
public:
    void Execute() override { benchmark::DoNotOptimize(++count); }

private:
    int count = 0;
};

class CLinkChain
{
public:
    CLinkChain(int length, bool normalized)
    {
        const CParamInfo info(2, 0.0f, 1.0f, 0.0f, "", "", "");
        params.push_back(std::make_unique<CCaptureParam>(info));
        for (int i = 0; i < length; ++i)
        {
            params.push_back(std::make_unique<CCaptureParam>(info));
            links.push_back(std::make_unique<CCaptureParamLink>());
            links.back()->SetNormalized(normalized);
            links.back()->SetSource(params[params.size() - 2].get());
            links.back()->SetTarget(params.back().get());
            links.back()->Enable(true);
        }
        params.back()->GetValueChangedEventProvider().Connect(last);
    }

    void Run()
    {
        for (int i = 0; i < batch; ++i)
        {
            params.front()->SetValue(static_cast<float>(i % 2));
        }
    }

private:
    CCounter last;
    std::vector<std::unique_ptr<CCaptureParam>> params;
    std::vector<std::unique_ptr<CCaptureParamLink>> links;
};

class CEventChain
{
public:
    explicit CEventChain(int length)
    {
        providers.push_back(std::make_unique<CEventProvider>());
        for (int i = 0; i < length; ++i)
        {
            auto next = std::make_unique<CEventProvider>();
            commands.push_back(std::make_unique<TConstCommand<INotify>>(next.get(), &INotify::Notify));
            providers.back()->Connect(*commands.back());
            providers.push_back(std::move(next));
        }
        providers.back()->Connect(last);
    }

    void Run()
    {
        for (int i = 0; i < batch; ++i)
        {
            providers.front()->Notify();
        }
    }

private:
    CCounter last;
    std::vector<std::unique_ptr<CEventProvider>> providers;
    std::vector<std::unique_ptr<ICommand>> commands;
};

void Chain(benchmark::State& state)
{
    const int length = static_cast<int>(state.range(0));
    CLinkChain plain(length, false);
    CLinkChain normalized(length, true);
    CEventChain events(length);

    Benchmarks::CContest contest(state, batch);
    contest.Add("plain links", [&] { plain.Run(); });
    contest.Add("normalized links", [&] { normalized.Run(); });
    contest.Add("events", [&] { events.Run(); });
    contest.Run();
}

} // namespace

BENCHMARK(Chain)->Arg(1)->Arg(10)->Arg(100)->UseManualTime()->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
