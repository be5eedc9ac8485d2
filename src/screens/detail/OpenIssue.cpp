#include "screens/detail/OpenIssue.h"

#include "async/Spawn.h"
#include "model/OneLineText.h"
#include "model/dates/DateLabels.h"
#include "model/dates/DueDates.h"

using namespace Qt::StringLiterals;

OpenIssue::~OpenIssue()
{
    m_stop.request_stop();
}

void OpenIssue::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        for (const auto change : {&AppStore::issuesChanged, &AppStore::detailsChanged,
                                  &AppStore::myOpenIssuesChanged, &AppStore::projectsChanged})
            connect(m_store, change, this, &OpenIssue::update);
        connect(m_store, &AppStore::nowChanged, this, &OpenIssue::changed);
        connect(m_store, &AppStore::calendarChanged, this, &OpenIssue::changed);
        connect(m_store, &AppStore::detailErrorsChanged, this, &OpenIssue::changed);
        connect(m_store, &AppStore::phaseChanged, this, &OpenIssue::load);
    }
    Q_EMIT storeChanged();
    begin();
}

void OpenIssue::setKey(const QString &key)
{
    if (m_key == key)
        return;
    m_key = key;
    Q_EMIT keyChanged();
    begin();
}

void OpenIssue::begin()
{
    update();
    load();
}

void OpenIssue::load()
{
    m_stop.request_stop();
    m_stop = std::stop_source();
    if (m_store && !m_key.isEmpty() && m_store->phase() == AppStore::Phase::Ready)
        spawn(m_store->loadDetails(m_key, m_stop.get_token()));
}

void OpenIssue::update()
{
    const auto known = m_store ? m_store->issue(m_key) : std::nullopt;
    const Issue issue = known ? withOneLineTexts(**known) : Issue();
    const auto project = m_store ? m_store->project(issue.projectKey) : std::nullopt;
    if (m_issue == issue && m_project == project)
        return;
    m_issue = issue;
    m_project = project;
    Q_EMIT changed();
}

QString OpenIssue::errorText() const
{
    return m_store && !isKnown() ? m_store->detailErrors().value(m_key) : QString();
}

QString OpenIssue::title() const
{
    return isKnown() ? m_key + u" – "_s + m_issue.summary : m_key;
}

QString OpenIssue::projectName() const
{
    return m_project ? m_project->name : m_key.section(u'-', 0, 0);
}

QString OpenIssue::priorityTitle() const
{
    return m_issue.priority ? m_issue.priority->displayName() : u"Priorité"_s;
}

QString OpenIssue::assigneeTitle() const
{
    return m_issue.assignee ? m_issue.assignee->name : u"Non assigné"_s;
}

QString OpenIssue::labelsTitle() const
{
    const auto &labels = m_issue.labels;
    if (labels.isEmpty())
        return u"Étiquettes"_s;
    if (labels.size() <= 2)
        return labels.join(u", "_s);
    return labels.front() + u" +"_s + QString::number(labels.size() - 1);
}

QString OpenIssue::dueTitle() const
{
    return m_store && m_issue.dueDate
               ? dueLabel(*m_issue.dueDate, m_store->now(), m_store->calendar())
               : u"Échéance"_s;
}

bool OpenIssue::isOverdue() const
{
    return m_store && ::isOverdue(m_issue, m_store->calendar().day(m_store->now()));
}

QString OpenIssue::dueDay() const
{
    return m_issue.dueDate ? m_issue.dueDate->toString(Qt::ISODate) : today();
}

QString OpenIssue::today() const
{
    return m_store ? m_store->calendar().day(m_store->now()).toString(Qt::ISODate) : QString();
}

IssueType OpenIssue::parentType() const
{
    return hasParentType() ? *m_issue.parent->type : IssueType();
}

QString OpenIssue::localeName() const
{
    return m_store ? m_store->calendar().locale.name() : QString();
}

QString OpenIssue::timeZone() const
{
    return m_store ? QString::fromLatin1(m_store->calendar().zone.id()) : QString();
}

void OpenIssue::run(Commands::Command command)
{
    if (m_store)
        m_store->run(command, keys());
}

void OpenIssue::rename(const QString &key, const QString &title)
{
    const auto known = m_store ? m_store->issue(key) : std::nullopt;
    const QString wanted = title.trimmed();
    if (known && !wanted.isEmpty() && wanted != oneLine((*known)->summary))
        m_store->rename(key, wanted);
}

void OpenIssue::setDueDay(const QString &day)
{
    const auto date = QDate::fromString(day, Qt::ISODate);
    if (m_store && isKnown())
        m_store->setDueDate(date.isValid() ? std::optional(date) : std::nullopt, m_key);
}

void OpenIssue::openOther(const QString &key)
{
    if (m_store)
        m_store->openInInspector(key);
}

void OpenIssue::openLink(const QString &address)
{
    if (m_store)
        m_store->openAddress(QUrl(address));
}
