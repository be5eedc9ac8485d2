#include "state/InterleavingRun.h"

using namespace Qt::StringLiterals;

namespace {

const QList<IssueScope> Scopes{IssueScope::myIssues(), IssueScope::recent(),
                               IssueScope::project(u"WEB"_s, ProjectView::All)};

QHash<QString, SharedIssue> byKey(const IssueList &issues)
{
    QHash<QString, SharedIssue> result;
    for (const SharedIssue &issue : issues)
        result.insert(issue->key, issue);
    return result;
}

} // namespace

void InterleavingRun::run(const Action &action)
{
    ++m_counts.steps;
    const Places before = places();
    const qsizetype toasts = m_store.toasts().size();
    const Effect effect = action();
    while (m_purposes.size() < m_service.transitionsCalls.count())
        m_purposes += effect.newTransitions;
    EXPECT_EQ(m_store.toasts().size() - toasts, effect.toasts);
    const Places after = places();
    if (!effect.isSessionChange)
        check(before, after, effect);
    checkAgreement(after);
}

InterleavingRun::Places InterleavingRun::places() const
{
    Places result;
    result.insert(u"issues"_s, byKey(m_store.issues()));
    result.insert(u"details"_s, m_store.details());
    result.insert(u"mine"_s, byKey(m_store.myOpenIssues()));
    for (int i = 0; i < Scopes.size(); ++i)
        result.insert(u"cache %1"_s.arg(i), byKey(m_store.scopeCache().value(Scopes[i])));
    return result;
}

void InterleavingRun::check(const Places &before, const Places &after, const Effect &effect)
{
    for (auto place = after.cbegin(); place != after.cend(); ++place) {
        const auto &was = before[place.key()];
        const bool hasArrival = effect.arrivals.contains(place.key());
        if (!hasArrival) {
            EXPECT_EQ(was.size(), place->size()) << place.key().toStdString();
        }
        for (auto copy = place->cbegin(); copy != place->cend(); ++copy) {
            const auto old = was.constFind(copy.key());
            if (old != was.cend()) {
                checkCopy(place.key(), *old, *copy, effect);
            } else {
                EXPECT_TRUE(hasArrival) << place.key().toStdString();
                m_mayDiffer.insert(copy.key(), {Status, Updated, Priority, Assignee, Labels,
                                                Summary, Description, DueDate});
            }
        }
    }
}

void InterleavingRun::checkCopy(const QString &place, const SharedIssue &before,
                                const SharedIssue &after, const Effect &effect)
{
    if (before.isSameObject(after))
        return;
    const Fields changed = differences(*before, *after);
    const auto arrived = effect.arrived.constFind(after->key);
    if (effect.arrivals.contains(place) && arrived != effect.arrived.cend()) {
        // A list knows no description; the record of an opened issue keeps its own.
        Fields other = differences(*after, *arrived);
        if (place == u"details"_s && !arrived->hasDetails) {
            other.erase(Description);
            other.erase(Rest);
        }
        EXPECT_TRUE(other.empty()) << place.toStdString() << ' ' << after->key.toStdString();
        m_mayDiffer[after->key].insert(changed.begin(), changed.end());
        return;
    }
    const Fields allowed = effect.edits.value(after->key);
    for (const Field field : changed) {
        EXPECT_TRUE(allowed.contains(field))
            << "field " << field << " of " << after->key.toStdString() << " in "
            << place.toStdString();
        m_mayDiffer[after->key].erase(field);
    }
}

void InterleavingRun::checkAgreement(const Places &places)
{
    for (const QString &key : std::as_const(m_keys)) {
        const SharedIssue *first = nullptr;
        const Fields mayDiffer = m_mayDiffer.value(key);
        for (const auto &place : places) {
            const auto copy = place.constFind(key);
            if (copy == place.cend())
                continue;
            if (first) {
                for (const Field field : differences(**first, **copy)) {
                    EXPECT_TRUE(field == Rest || mayDiffer.contains(field))
                        << "copies of " << key.toStdString() << " differ in field " << field;
                }
                m_counts.agreements += Rest - qint64(mayDiffer.size());
            }
            first = &*copy;
        }
    }
}

/// As if the user went to every list and opened every issue again.
void InterleavingRun::refreshEverything()
{
    m_isOrderly = true;
    const auto answerAll = [this] {
        for (auto left = answers(); !left.isEmpty(); left = answers())
            run(left.front());
    };
    if (m_store.phase() != AppStore::Phase::Ready)
        run([this] {
            m_store.openDemo();
            Effect effect;
            effect.isSessionChange = true;
            return effect;
        });
    answerAll();
    m_store.refresh();
    answerAll();
    for (const IssueScope &scope : Scopes) {
        m_store.select(scope);
        answerAll();
    }
    spawn(m_store.refreshMyIssues());
    answerAll();
    for (const QString &key : m_store.details().keys()) {
        spawn(m_store.loadDetails(key));
        answerAll();
    }
    m_store.refresh();
    answerAll();
}

void InterleavingRun::checkAgainstSite()
{
    const Places all = places();
    int copies = 0;
    for (auto place = all.cbegin(); place != all.cend(); ++place) {
        for (const SharedIssue &copy : *place) {
            const bool isOpened = place.key() == u"details"_s;
            Fields other = differences(*copy, isOpened ? m_site.value(copy->key)
                                                       : listed(m_site.value(copy->key)));
            other.erase(Rest);
            EXPECT_TRUE(other.empty()) << place.key().toStdString() << ' '
                                       << copy->key.toStdString() << " field " << *other.begin();
            ++copies;
        }
    }
    EXPECT_GE(copies, 6);
}

IssueList InterleavingRun::listOf(const IssueScope &scope, const Site &site) const
{
    IssueList result;
    for (const QString &key : m_keys) {
        const bool isMine = key != m_keys[0] && key != m_keys[1];
        const bool isIn = scope == Scopes[0]   ? isMine
                          : scope == Scopes[2] ? key.startsWith(u"WEB"_s)
                                               : true;
        if (isIn)
            result += listed(site.value(key));
    }
    return result;
}

Issue InterleavingRun::listed(Issue issue)
{
    issue.description.reset();
    return issue;
}

InterleavingRun::Fields InterleavingRun::differences(const Issue &a, const Issue &b)
{
    Fields result;
    const auto note = [&](bool isSame, Field field) {
        if (!isSame)
            result.insert(field);
    };
    note(a.status == b.status, Status);
    note(a.updated == b.updated, Updated);
    note(a.priority == b.priority, Priority);
    note(a.assignee == b.assignee, Assignee);
    note(a.labels == b.labels, Labels);
    note(a.summary == b.summary, Summary);
    note(a.description == b.description, Description);
    note(a.dueDate == b.dueDate, DueDate);
    Issue rest = a;
    rest.status = b.status;
    rest.updated = b.updated;
    rest.priority = b.priority;
    rest.assignee = b.assignee;
    rest.labels = b.labels;
    rest.summary = b.summary;
    rest.description = b.description;
    rest.dueDate = b.dueDate;
    note(rest == b, Rest);
    return result;
}

InterleavingRun::Fields InterleavingRun::fieldsOf(const IssueFieldUpdate &update)
{
    constexpr std::array fields{Summary, Description, Priority, Labels, DueDate};
    return {fields[update.value.index()]};
}
