// Measures the update of the list model from one state to the next, without a view. Times are processor time.

#include "BenchIssues.h"
#include "derivation/IssueDerivation.h"
#include "state/models/IssueListModel.h"

#include <benchmark/benchmark.h>

namespace {

QList<IssueGroup> groupsOf(const IssueDerivationInputs &inputs)
{
    IssueDerivation derivation;
    derivation.setInputs(inputs);
    return derivation.groups();
}

/// Alternates between two states of the list.
void alternate(benchmark::State &state, const QList<IssueGroup> &one,
               const QList<IssueGroup> &other)
{
    IssueListModel model({samples(0).locale, QTimeZone::utc()},
                         QDateTime::fromMSecsSinceEpoch(0, Qt::UTC));
    bool isOne = false;
    for (auto _ : state) {
        isOne = !isOne;
        model.setGroups(isOne ? one : other, {});
        benchmark::DoNotOptimize(model.rowOfKey(QStringLiteral("WEB-7")));
    }
}

void sameRows(benchmark::State &state)
{
    const auto groups = groupsOf(samples(int(state.range(0))));
    alternate(state, groups, groups);
}

void oneStatusChange(benchmark::State &state)
{
    auto inputs = samples(int(state.range(0)));
    const auto before = groupsOf(inputs);
    Issue issue = *inputs.issues[100];
    issue.status = inputs.issues[101]->status;
    inputs.issues[100] = issue;
    alternate(state, before, groupsOf(inputs));
}

void search(benchmark::State &state)
{
    auto inputs = samples(int(state.range(0)));
    const auto before = groupsOf(inputs);
    inputs.filterText = QStringLiteral("12");
    alternate(state, before, groupsOf(inputs));
}

void otherOrder(benchmark::State &state)
{
    auto inputs = samples(int(state.range(0)));
    const auto before = groupsOf(inputs);
    inputs.ordering = Ordering::Key;
    alternate(state, before, groupsOf(inputs));
}

void moveFocus(benchmark::State &state)
{
    IssueListModel model({samples(0).locale, QTimeZone::utc()},
                         QDateTime::fromMSecsSinceEpoch(0, Qt::UTC));
    model.setGroups(groupsOf(samples(int(state.range(0)))), {});
    bool isFirst = false;
    for (auto _ : state) {
        isFirst = !isFirst;
        model.setFocusedKey(isFirst ? QStringLiteral("WEB-1") : QStringLiteral("WEB-99"));
    }
}

} // namespace

BENCHMARK(sameRows)->Arg(300)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(oneStatusChange)->Arg(300)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(search)->Arg(300)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(otherOrder)->Arg(300)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(moveFocus)->Arg(10000)->Unit(benchmark::kNanosecond);

BENCHMARK_MAIN();
