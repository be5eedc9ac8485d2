// Measures the derivation from a change of the store's fields to the groups that a list displays. Times depend on the
// machine, so each benchmark also reports its time as a multiple of a baseline measured in the same run: a copy of the
// list and one pass of QString::contains over the summaries.

#include "BenchIssues.h"
#include "derivation/IssueDerivation.h"

#include <benchmark/benchmark.h>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

/// Processor time, which excludes the work of other programs.
double seconds(const std::function<void()> &work)
{
    const auto start = std::clock();
    work();
    return double(std::clock() - start) / CLOCKS_PER_SEC;
}

double floorOf(const IssueList &issues)
{
    double best = 1;
    for (int run = 0; run < 30; ++run) {
        best = std::min(best, seconds([&issues] {
                            IssueList copy;
                            for (const auto &issue : issues) {
                                copy.append(issue);
                                benchmark::DoNotOptimize(issue->summary.contains(u"introuvable"_s));
                            }
                            benchmark::DoNotOptimize(copy);
                        }));
    }
    return best;
}

/// Repeatedly applies a change to the inputs and reads everything that a list displays.
template <typename Change>
void measure(benchmark::State &state, Change change)
{
    auto inputs = samples(int(state.range(0)));
    IssueDerivation derivation;
    derivation.setInputs(inputs);
    benchmark::DoNotOptimize(derivation.flatVisibleKeys());
    double total = 0;
    int turn = 0;
    for (auto _ : state) {
        change(inputs, turn++);
        const auto time = seconds([&] {
            derivation.setInputs(inputs);
            benchmark::DoNotOptimize(derivation.visibleIssues());
            benchmark::DoNotOptimize(derivation.groups());
            benchmark::DoNotOptimize(derivation.flatVisibleKeys());
        });
        state.SetIterationTime(time);
        total += time;
    }
    state.counters["floors"] = total / double(state.iterations()) / floorOf(inputs.issues);
}

void keystroke(benchmark::State &state)
{
    const QStringList texts{u"a"_s, u"ac"_s, u"acc"_s, u"accents"_s, u"page nº 12"_s, u""_s};
    measure(state, [&texts](IssueDerivationInputs &inputs, int turn) {
        inputs.filterText = texts[turn % texts.size()];
    });
}

void keystrokeThatHitsAll(benchmark::State &state)
{
    measure(state, [](IssueDerivationInputs &inputs, int turn) {
        inputs.filterText = turn % 2 ? u"web"_s : u"WEB-1"_s;
    });
}

void statusFilter(benchmark::State &state)
{
    measure(state, [](IssueDerivationInputs &inputs, int turn) {
        inputs.filters.statuses = turn % 2 ? QSet<QString>{u"inprogress"_s} : QSet<QString>{};
    });
}

void otherOrdering(benchmark::State &state)
{
    measure(state,
            [](IssueDerivationInputs &inputs, int turn) { inputs.ordering = Ordering(turn % 4); });
}

void otherGrouping(benchmark::State &state)
{
    measure(state,
            [](IssueDerivationInputs &inputs, int turn) { inputs.grouping = Grouping(turn % 4); });
}

void oneIssueEdited(benchmark::State &state)
{
    measure(state, [](IssueDerivationInputs &inputs, int turn) {
        Issue issue = *inputs.issues[100];
        issue.summary = u"Modifié "_s + QString::number(turn);
        inputs.issues[100] = issue;
    });
}

void firstLoad(benchmark::State &state)
{
    const auto inputs = samples(int(state.range(0)));
    double total = 0;
    for (auto _ : state) {
        IssueDerivation derivation;
        const auto time = seconds([&] {
            derivation.setInputs(inputs);
            benchmark::DoNotOptimize(derivation.flatVisibleKeys());
        });
        state.SetIterationTime(time);
        total += time;
    }
    state.counters["floors"] = total / double(state.iterations()) / floorOf(inputs.issues);
}

} // namespace

BENCHMARK(keystroke)->Arg(300)->Arg(10000)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(keystrokeThatHitsAll)
    ->Arg(300)
    ->Arg(10000)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(statusFilter)->Arg(10000)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(otherOrdering)->Arg(10000)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(otherGrouping)->Arg(10000)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(oneIssueEdited)->Arg(300)->Arg(10000)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(firstLoad)->Arg(300)->Arg(10000)->UseManualTime()->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
