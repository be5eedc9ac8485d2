#include "jira/matrix/Fault.h"
#include "jira/matrix/Moment.h"
#include "jira/matrix/SimulatedStore.h"
#include "jira/matrix/Spoken.h"
#include "jira/matrix/StoreAction.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The issues as displayed: the records of lists have no description, but a reverted edit stores one in every copy.
IssueList shown(const IssueList &issues)
{
    IssueList result;
    for (const SharedIssue &shared : issues) {
        Issue issue = *shared;
        if (!issue.hasDetails)
            issue.description.reset();
        result += SharedIssue(issue);
    }
    return result;
}

QHash<IssueScope, IssueList> shown(const QHash<IssueScope, IndexedIssues> &scopes)
{
    QHash<IssueScope, IssueList> result;
    for (auto scope = scopes.cbegin(); scope != scopes.cend(); ++scope)
        result.insert(scope.key(), shown(scope->list()));
    return result;
}

/// All data of the site that a session holds.
struct Known
{
    explicit Known(const AppStore &store)
        : issues(shown(store.issues())),
          myOpenIssues(shown(store.myOpenIssues())),
          scopes(shown(store.scopeCache())),
          details(store.details()),
          comments(store.comments()),
          transitions(store.transitions())
    {
    }

    IssueList issues;
    IssueList myOpenIssues;
    QHash<IssueScope, IssueList> scopes;
    AppStoreFields::IssueMap details;
    AppStoreFields::CommentMap comments;
    AppStoreFields::TransitionMap transitions;

    bool operator==(const Known &) const = default;
};

bool changesSite(SiteOperation operation)
{
    constexpr SiteOperation changes[] = {SiteOperation::Perform,         SiteOperation::Update,
                                         SiteOperation::Assign,          SiteOperation::AddComment,
                                         SiteOperation::Create,          SiteOperation::Upload,
                                         SiteOperation::DeleteAttachment};
    return std::ranges::find(changes, operation) != std::end(changes);
}

/// The effect of a faulty response on a user action, in a complete session on a simulated site.
class StoreMatrix : public SimulatedStore,
                    public testing::WithParamInterface<std::tuple<StoreAction, Fault>>
{
protected:
    void SetUp() override
    {
        SimulatedStore::SetUp();
        const TaskResult<void> opened(store->loadDetails(key));
        ASSERT_TRUE(runUntil([&] { return opened.isDone(); }));
        ASSERT_FALSE(store->transitions().value(key).isEmpty());
    }

    static const StoreAction &action() { return std::get<StoreAction>(GetParam()); }
    static const Fault &fault() { return std::get<Fault>(GetParam()); }

    /// The text that the user should read; nothing if the response is sufficient for the action.
    static std::optional<QString> expected()
    {
        if (fault().texts.changing && changesSite(action().operation))
            return *fault().texts.changing;
        return action().kind == Operation::Kind::IgnoresAnswer
                   ? fault().texts.ignoring.value_or(fault().texts.reading)
                   : fault().texts.reading;
    }

    std::optional<QString> toast() const
    {
        return store->toasts().isEmpty() ? std::nullopt
                                         : std::optional(store->toasts().last().message);
    }

    bool wasAsked() const
    {
        const auto &journal = simulated.journal();
        return std::ranges::any_of(journal, [](const RawRequest &request) {
            const auto route = routeOf(request);
            return route && route->operation == action().operation;
        });
    }
};

/// The faults that can affect a single response within a running session. Faults of certificates and names prevent a
/// session from starting, and a loop of redirects leaves the tested operation.
QList<Fault> laterFaults()
{
    QList<Fault> faults = transportFaults() + refusals();
    faults.removeIf([](const Fault &fault) {
        const bool isAnswer =
            fault.place == Fault::Place::Answer || fault.place == Fault::Place::Time;
        return !isAnswer || fault.answer.bytes.contains("Location:");
    });
    return faults;
}

std::string nameOf(const testing::TestParamInfo<StoreMatrix::ParamType> &info)
{
    return std::get<StoreAction>(info.param).name + std::string("_") +
           std::get<Fault>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(Answers, StoreMatrix,
                         testing::Combine(testing::ValuesIn(allStoreActions()),
                                          testing::ValuesIn(laterFaults())),
                         nameOf);

TEST_P(StoreMatrix, AFailureLeavesTheSessionAsItWas)
{
    const Known before(*store);
    const qsizetype issuesOfTheSite = simulated.site().issues().size();
    simulated.server().clearJournal();
    simulated.answer(action().operation, fault().answer);

    const TaskResult<void> result(action().start(*store, key));
    if (fault().place == Fault::Place::Time) {
        ASSERT_TRUE(runUntil([&] { return wasAsked(); })) << "the site was never asked";
        letPartsArrive();
        clock.advance(31s);
    }
    const bool isTold = action().outcome == StoreAction::Outcome::Told && expected();
    ASSERT_TRUE(runUntil([&] {
        return result.isDone() && wasAsked() && (!isTold || !store->toasts().isEmpty());
    })) << "it never ended";

    if (isTold)
        EXPECT_EQ(spoken(toast(), expected()), spoken(expected()));
    if (expected())
        EXPECT_TRUE(Known(*store) == before);
    EXPECT_EQ(simulated.site().issues().size(), issuesOfTheSite);
}

} // namespace
