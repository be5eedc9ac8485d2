#include "derivation/IssueDerivationSamples.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

/// A random generator that repeats the same numbers for the same seed.
class Dice
{
public:
    explicit Dice(quint32 seed) : m_generator(seed) {}

    int below(int bound) { return m_generator.bounded(bound); }
    bool oneIn(int chances) { return below(chances) == 0; }
    template <typename T>
    T pick(const QList<T> &values)
    {
        return values[below(int(values.size()))];
    }

private:
    QRandomGenerator m_generator;
};

const QStringList projectKeys{u"WEB"_s, u"API"_s, u"OPS"_s};
const QStringList labelTexts{u"été"_s, u"Api"_s, u"zèbre"_s, u"urgent"_s};

QList<IssueStatus> someStatuses()
{
    return {todo(),
            todo(u"To Do"_s),
            IssueStatus(u"7"_s, u"Backlog"_s, u"new"_s),
            inProgress(),
            inProgress(u"In Progress"_s),
            inProgress(u"En revue"_s),
            inProgress(u"Staging"_s),
            inProgress(u"Éprouvé"_s),
            done(),
            done(u"Annulé"_s),
            IssueStatus(u"9"_s, u"Terminé"_s, u"new"_s)};
}

QList<JiraUser> someUsers()
{
    return {user(u"u1"_s, u"Noam Talvère"_s), user(u"u2"_s, u"Élise Brun"_s),
            user(u"u3"_s, u"eloi Zed"_s), user(u"u4"_s, u"Éloi zed"_s)};
}

QList<IssueType> someTypes()
{
    return {{u"t1"_s, u"Bug"_s, false, 0},
            {u"t2"_s, u"Tâche"_s, false, 0},
            {u"t3"_s, u"Bug"_s, false, 0}};
}

Issue randomIssue(Dice &dice, int number)
{
    const QStringList words{u"Être"_s,  u"recherche"_s, u"ACCENTS"_s,
                            u"œuvre"_s, u"page"_s,      u"l’été"_s};
    Issue issue = sampleIssue(dice.pick(projectKeys) + u'-' + QString::number(number));
    issue.summary =
        dice.pick(words) + u' ' + dice.pick(words) + u' ' + QString::number(dice.below(50));
    issue.status = dice.pick(someStatuses());
    if (!dice.oneIn(5))
        issue.priority = priority(
            dice.pick(QStringList{u"Highest"_s, u"High"_s, u"Medium"_s, u"Low"_s, u"Rien"_s}));
    if (!dice.oneIn(4))
        issue.assignee = dice.pick(someUsers());
    for (int count = dice.below(3); count > 0; --count)
        issue.labels.append(dice.pick(labelTexts));
    if (!dice.oneIn(6))
        issue.type = dice.pick(someTypes());
    issue.created = minute(dice.below(40));
    issue.updated = minute(dice.below(40));
    for (int count = dice.below(3); count > 0; --count)
        issue.activity.append({minute(dice.below(40)), std::nullopt, ActivityEvent::Created{}});
    return issue;
}

template <typename T>
QSet<T> someOf(Dice &dice, const QList<T> &values)
{
    QSet<T> set;
    if (dice.oneIn(3)) {
        for (const auto &value : values) {
            if (dice.oneIn(2))
                set.insert(value);
        }
    }
    return set;
}

IssueFilters randomFilters(Dice &dice)
{
    IssueFilters filters;
    filters.statuses =
        someOf(dice, QStringList{u"todo"_s, u"inprogress"_s, u"done"_s, u"staging"_s});
    filters.priorities =
        someOf(dice, QList{PriorityLevel::Urgent, PriorityLevel::High, PriorityLevel::None});
    filters.assignees =
        someOf(dice, QStringList{u"u1"_s, u"u3"_s, QString(IssueFilters::unassigned)});
    filters.labels = someOf(dice, labelTexts);
    filters.types = someOf(dice, QStringList{u"t1"_s, u"t2"_s, QString()});
    return filters;
}

IssueScope randomScope(Dice &dice)
{
    return dice.pick(QList<IssueScope>{IssueScope::myIssues(),
                                       IssueScope::project(u"WEB"_s, ProjectView::All),
                                       IssueScope::project(u"API"_s, ProjectView::Backlog),
                                       IssueScope::activity({ActivityRange::Week, 0, false})});
}

} // namespace

Issue sampleIssue(const QString &key, const QString &statusName)
{
    Issue issue;
    issue.id = key;
    issue.key = key;
    issue.summary = u"Résumé de "_s + key;
    issue.projectKey = key.section(u'-', 0, 0);
    issue.status = IssueStatus(statusName, statusName, u"new"_s);
    issue.created = minute(0);
    issue.updated = minute(0);
    return issue;
}

QDateTime minute(int minutes)
{
    return QDateTime(QDate(2026, 11, 2), QTime(8, 0), Qt::UTC)
        .addDuration(std::chrono::minutes(minutes));
}

IssueStatus todo(const QString &name)
{
    return IssueStatus(u"s:"_s + name, name, u"new"_s);
}

IssueStatus inProgress(const QString &name)
{
    return IssueStatus(u"s:"_s + name, name, u"indeterminate"_s);
}

IssueStatus done(const QString &name)
{
    return IssueStatus(u"s:"_s + name, name, u"done"_s);
}

JiraUser user(const QString &id, const QString &name)
{
    JiraUser person;
    person.id = id;
    person.name = name;
    return person;
}

Project project(const QString &key, const QString &name)
{
    Project result;
    result.id = key;
    result.key = key;
    result.name = name;
    return result;
}

IssuePriority priority(const QString &name)
{
    return IssuePriority(name, name);
}

IssueDerivationInputs inputsOf(const QList<Issue> &issues)
{
    IssueDerivationInputs inputs;
    inputs.locale = QLocale(u"fr_FR"_s);
    for (const auto &issue : issues)
        inputs.issues.append(issue);
    return inputs;
}

QStringList keysOf(const IssueList &issues)
{
    QStringList keys;
    for (const auto &issue : issues)
        keys.append(issue->key);
    return keys;
}

IssueList randomIssues(quint32 seed, int count)
{
    Dice dice(seed);
    IssueList issues;
    for (int number = 1; number <= count; ++number)
        issues.append(randomIssue(dice, number));
    return issues;
}

IssueDerivationInputs randomInputs(quint32 seed, int count)
{
    Dice dice(seed + 1000);
    IssueDerivationInputs inputs;
    inputs.locale = QLocale(u"fr_FR"_s);
    inputs.issues = randomIssues(seed, count);
    inputs.scope = randomScope(dice);
    inputs.filters = randomFilters(dice);
    inputs.filterText = dice.pick(
        QStringList{QString(), u"  "_s, u"ETE"_s, u"accents 1"_s, u" élo "_s, u"web-1"_s, u"œ"_s});
    inputs.ordering = Ordering(dice.below(5));
    inputs.grouping = Grouping(dice.below(5));
    inputs.layout = LayoutMode(dice.below(2));
    inputs.showCompleted = dice.oneIn(2);
    inputs.collapsedGroups =
        someOf(dice, QStringList{u"s:inprogress"_s, u"a:u1"_s, u"p:4"_s, u"j:WEB"_s, u"all"_s});
    if (dice.oneIn(2))
        inputs.me = user(u"u3"_s, u"eloi Zed"_s);
    if (dice.oneIn(2))
        inputs.projects = {project(u"WEB"_s, u"Site"_s), project(u"OPS"_s, u"Exploitation"_s)};
    if (dice.oneIn(2))
        inputs.projectDetails.insert(u"WEB"_s, project(u"WEB"_s, u"Site en détail"_s));
    if (dice.oneIn(2))
        inputs.projectStatuses = {
            {u"WEB"_s,
             {inProgress(u"Éprouvé"_s), inProgress(u"Staging"_s), done(), todo(u"Libre"_s)}},
            {u"API"_s, {inProgress(u"Staging"_s), inProgress(u"Éprouvé"_s)}}};
    return inputs;
}

IssueDerivationInputs withOneSettingOf(IssueDerivationInputs inputs,
                                       const IssueDerivationInputs &other, quint32 which)
{
    switch (which % 12) {
    case 0:
        inputs.scope = other.scope;
        break;
    case 1:
        inputs.filters = other.filters;
        break;
    case 2:
        inputs.filterText = other.filterText;
        break;
    case 3:
        inputs.ordering = other.ordering;
        break;
    case 4:
        inputs.grouping = other.grouping;
        break;
    case 5:
        inputs.layout = other.layout;
        break;
    case 6:
        inputs.showCompleted = !inputs.showCompleted;
        break;
    case 7:
        inputs.collapsedGroups = other.collapsedGroups;
        break;
    case 8:
        inputs.projectStatuses = other.projectStatuses;
        break;
    case 9:
        inputs.me = other.me;
        break;
    case 10:
        inputs.projects = other.projects;
        inputs.projectDetails = other.projectDetails;
        break;
    default:
        inputs.issues = other.issues;
    }
    return inputs;
}
