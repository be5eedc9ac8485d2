#include "commands/OptionBuilders.h"

#include "state/recap/ActivitySamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Sample::user;

namespace {

const IssueStatus todo(u"1"_s, u"À faire"_s, u"new"_s);
const IssueStatus inProgress(u"3"_s, u"En cours"_s, u"indeterminate"_s);
const IssueStatus review(u"4"_s, u"En revue"_s, u"indeterminate"_s);
const IssueStatus done(u"5"_s, u"Terminé"_s, u"done"_s);
const IssuePriority high(u"2"_s, u"High"_s);
const IssuePriority low(u"4"_s, u"Low"_s);
const JiraUser nora = user(u"u1"_s, u"Nora"_s);
const JiraUser emile = user(u"u2"_s, u"Émile"_s);
const JiraUser zoe = user(u"u3"_s, u"zoé"_s);

Issue issueWith(const QString &key, const IssueStatus &status)
{
    Issue issue = Sample::issue(key);
    issue.status = status;
    return issue;
}

OptionInputs inputsFor(const IssueList &targets)
{
    OptionInputs inputs;
    inputs.locale = QLocale(QLocale::French);
    inputs.targets = targets;
    for (const SharedIssue &issue : targets)
        inputs.keys.append(issue->key);
    return inputs;
}

QStringList ids(const QList<OptionItem> &items)
{
    QStringList result;
    for (const OptionItem &item : items)
        result.append(item.id);
    return result;
}

QList<bool> selected(const QList<OptionItem> &items)
{
    QList<bool> result;
    for (const OptionItem &item : items)
        result.append(item.isSelected);
    return result;
}

} // namespace

TEST(StatusOptions, OfOneIssueAreWhatItsWorkflowAllows)
{
    OptionInputs inputs = inputsFor({issueWith(u"A-1"_s, todo)});
    inputs.transitions = {
        {u"A-1"_s, {{u"11"_s, u"Clore"_s, done}, {u"12"_s, u"Commencer"_s, inProgress}}}};
    inputs.projectStatuses = {{u"A"_s, {todo, inProgress, review, done}}};
    EXPECT_EQ(statusOptions(inputs), (QList{todo, inProgress, done}));
}

TEST(StatusOptions, OfOneIssueWhoseTransitionsAreNotYetLoadedAreTheProjects)
{
    OptionInputs inputs = inputsFor({issueWith(u"A-1"_s, todo)});
    inputs.projectStatuses = {{u"A"_s, {done, todo, review, inProgress}}};
    EXPECT_EQ(statusOptions(inputs), (QList{todo, inProgress, review, done}));
    inputs.transitions = {{u"A-1"_s, {}}};
    EXPECT_EQ(statusOptions(inputs).size(), 4);
}

TEST(StatusOptions, OfSeveralIssuesAreTheirProjectsOnePerGroup)
{
    const IssueStatus english(u"30"_s, u"In Progress"_s, u"indeterminate"_s);
    OptionInputs inputs = inputsFor({issueWith(u"B-1"_s, todo), issueWith(u"A-1"_s, todo)});
    inputs.transitions = {{u"A-1"_s, {{u"11"_s, u"Clore"_s, done}}}};
    inputs.projectStatuses = {
        {u"A"_s, {inProgress, done}}, {u"B"_s, {english}}, {u"C"_s, {review}}};
    EXPECT_EQ(statusOptions(inputs), (QList{english, done}));
}

TEST(StatusOptions, OfIssuesOfOneProjectStandInTheOrderOfItsWorkflow)
{
    const IssueStatus bench(u"7"_s, u"Banc"_s, u"indeterminate"_s);
    const IssueStatus staging(u"8"_s, u"Staging"_s, u"indeterminate"_s);
    OptionInputs inputs = inputsFor({issueWith(u"B-1"_s, staging), issueWith(u"B-2"_s, bench)});
    inputs.projectStatuses = {{u"A"_s, {bench, staging}}, {u"B"_s, {staging, bench}}};
    EXPECT_EQ(statusOptions(inputs), (QList{staging, bench}));
}

TEST(StatusOptions, OfUnloadedProjectsAreThoseOfTheKnownIssues)
{
    OptionInputs inputs = inputsFor({issueWith(u"A-1"_s, todo)});
    inputs.issues = {issueWith(u"B-1"_s, done), issueWith(u"B-2"_s, inProgress)};
    inputs.myOpenIssues = {issueWith(u"B-3"_s, review), issueWith(u"B-4"_s, inProgress)};
    EXPECT_EQ(statusOptions(inputs), (QList{inProgress, review, done}));
}

TEST(AssigneeOptions, HaveTheUserFirstAndTheOthersByName)
{
    OptionInputs inputs = inputsFor({issueWith(u"A-1"_s, todo)});
    inputs.assignables = {{u"A"_s, {zoe, nora}}, {u"B"_s, {user(u"u9"_s, u"Ada"_s)}}};
    inputs.availableAssignees = {nora, emile};
    inputs.me = zoe;
    EXPECT_EQ(assigneeOptions(inputs), (QList{zoe, emile, nora}));
}

TEST(AssigneeOptions, HaveTheUserEvenWhenNobodyElseKnowsThem)
{
    OptionInputs inputs = inputsFor({});
    inputs.me = nora;
    EXPECT_EQ(assigneeOptions(inputs), QList{nora});
}

TEST(PriorityOptions, AreTheSitesInItsOrder)
{
    OptionInputs inputs = inputsFor({});
    inputs.priorities = {low, high};
    EXPECT_EQ(priorityOptions(inputs), (QList{low, high}));
}

TEST(PriorityOptions, AreThoseOfTheIssuesWhileTheSitesAreUnknown)
{
    Issue a = Sample::issue(u"A-1"_s), b = Sample::issue(u"A-2"_s), c = Sample::issue(u"A-3"_s);
    a.priority = low;
    b.priority = high;
    c.priority = low;
    OptionInputs inputs = inputsFor({});
    inputs.issues = {a, Sample::issue(u"A-4"_s), b, c};
    EXPECT_EQ(priorityOptions(inputs), (QList{high, low}));
}

TEST(Options, AStatusRowTellsAllOfIt)
{
    OptionInputs inputs = inputsFor(
        {issueWith(u"A-1"_s, IssueStatus(u"30"_s, u"In Progress"_s, u"indeterminate"_s))});
    inputs.projectStatuses = {{u"A"_s, {inProgress}}};
    const OptionItem expected{.id = u"status:inprogress"_s,
                              .title = u"En cours"_s,
                              .subtitle = {},
                              .icon = {inProgress},
                              .isSelected = true,
                              .shortcut = u"1"_s,
                              .keepsOpen = false,
                              .run = {OptionAction::SetStatus{inProgress, {u"A-1"_s}}}};
    EXPECT_EQ(options(PickerKind::Status, inputs), QList{expected});
}

TEST(Options, AStatusIsSelectedOnlyIfAllIssuesShareIt)
{
    OptionInputs inputs = inputsFor({issueWith(u"A-1"_s, todo), issueWith(u"A-2"_s, done)});
    inputs.projectStatuses = {{u"A"_s, {todo, done}}};
    EXPECT_EQ(selected(options(PickerKind::Status, inputs)), (QList{false, false}));
}

TEST(Options, NothingIsSelectedForUnknownIssues)
{
    OptionInputs inputs = inputsFor({});
    inputs.keys = {u"A-1"_s};
    inputs.me = nora;
    inputs.availableLabels = {u"ios"_s};
    EXPECT_EQ(selected(options(PickerKind::Assignee, inputs)), (QList{false, false}));
    EXPECT_EQ(selected(options(PickerKind::Labels, inputs)), QList{false});
}

TEST(Options, OnlyTheFirstNineRowsHaveADigit)
{
    OptionInputs inputs = inputsFor({});
    for (int i = 1; i <= 11; ++i)
        inputs.priorities.append(IssuePriority(QString::number(i), u"P"_s));
    const auto items = options(PickerKind::Priority, inputs);
    ASSERT_EQ(items.size(), 11);
    EXPECT_EQ(items[0].shortcut, u"1"_s);
    EXPECT_EQ(items[8].shortcut, u"9"_s);
    EXPECT_EQ(items[9].shortcut, std::nullopt);
}

TEST(Options, APriorityRowTellsAllOfIt)
{
    Issue issue = Sample::issue(u"A-1"_s);
    issue.priority = high;
    OptionInputs inputs = inputsFor({issue});
    inputs.priorities = {high, low};
    const auto items = options(PickerKind::Priority, inputs);
    const OptionItem expected{.id = u"priority:2"_s,
                              .title = u"Haute"_s,
                              .subtitle = {},
                              .icon = {PriorityLevel::High},
                              .isSelected = true,
                              .shortcut = u"1"_s,
                              .keepsOpen = false,
                              .run = {OptionAction::SetPriority{high, {u"A-1"_s}}}};
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items[0], expected);
    EXPECT_FALSE(items[1].isSelected);
}

TEST(Options, AssigneesBeginWithNobodyAndSayWhoTheUserIs)
{
    Issue issue = Sample::issue(u"A-1"_s);
    issue.assignee = emile;
    OptionInputs inputs = inputsFor({issue});
    inputs.availableAssignees = {emile, nora};
    inputs.me = nora;
    const auto items = options(PickerKind::Assignee, inputs);
    EXPECT_EQ(ids(items), (QStringList{u"assignee:none"_s, u"assignee:u1"_s, u"assignee:u2"_s}));
    EXPECT_EQ(items[0].title, u"Non assigné");
    EXPECT_EQ(items[0].icon, OptionIcon{OptionIcon::User{}});
    EXPECT_EQ(items[0].run, (OptionAction{OptionAction::Assign{std::nullopt, {u"A-1"_s}}}));
    EXPECT_EQ(items[1].subtitle, u"Moi"_s);
    EXPECT_EQ(items[2].subtitle, std::nullopt);
    EXPECT_EQ(items[2].icon, OptionIcon{OptionIcon::User{emile}});
    EXPECT_EQ(items[2].run, (OptionAction{OptionAction::Assign{emile, {u"A-1"_s}}}));
    EXPECT_EQ(selected(items), (QList{false, false, true}));
    EXPECT_TRUE(std::ranges::none_of(
        items, [](const OptionItem &item) { return item.shortcut.has_value(); }));
}

TEST(Options, NobodyIsSelectedWhenAllIssuesAreUnassigned)
{
    OptionInputs inputs = inputsFor({Sample::issue(u"A-1"_s), Sample::issue(u"A-2"_s)});
    inputs.me = nora;
    EXPECT_EQ(selected(options(PickerKind::Assignee, inputs)), (QList{true, false}));
}

TEST(Options, LabelsKeepTheListOpenAndAreSelectedWhenEveryIssueHasThem)
{
    Issue a = Sample::issue(u"A-1"_s), b = Sample::issue(u"A-2"_s);
    a.labels = {u"ios"_s, u"web"_s};
    b.labels = {u"web"_s};
    OptionInputs inputs = inputsFor({a, b});
    inputs.availableLabels = {u"ios"_s, u"web"_s};
    const auto items = options(PickerKind::Labels, inputs);
    EXPECT_EQ(ids(items), (QStringList{u"label:ios"_s, u"label:web"_s}));
    EXPECT_EQ(selected(items), (QList{false, true}));
    EXPECT_TRUE(items[0].keepsOpen);
    EXPECT_EQ(items[0].icon, OptionIcon{OptionIcon::Label{u"ios"_s}});
    EXPECT_EQ(items[0].run,
              (OptionAction{OptionAction::ToggleLabel{u"ios"_s, {u"A-1"_s, u"A-2"_s}}}));
}
