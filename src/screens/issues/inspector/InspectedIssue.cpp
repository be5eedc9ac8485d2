#include "screens/issues/inspector/InspectedIssue.h"

#include "async/Spawn.h"
#include "model/OneLineText.h"
#include "model/dates/DateLabels.h"

using namespace Qt::StringLiterals;

InspectedIssue::~InspectedIssue()
{
    m_stop.request_stop();
}

void InspectedIssue::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        for (const auto change : {&AppStore::issuesChanged, &AppStore::detailsChanged,
                                  &AppStore::myOpenIssuesChanged, &AppStore::projectsChanged})
            connect(m_store, change, this, &InspectedIssue::update);
        connect(m_store, &AppStore::nowChanged, this, &InspectedIssue::changed);
        connect(m_store, &AppStore::calendarChanged, this, &InspectedIssue::changed);
        connect(m_store, &AppStore::detailErrorsChanged, this, &InspectedIssue::changed);
        connect(m_store, &AppStore::phaseChanged, this, &InspectedIssue::load);
    }
    Q_EMIT storeChanged();
    begin();
}

void InspectedIssue::setKey(const QString &key)
{
    if (m_key == key)
        return;
    m_key = key;
    Q_EMIT keyChanged();
    begin();
}

void InspectedIssue::begin()
{
    update();
    load();
}

void InspectedIssue::load()
{
    m_stop.request_stop();
    m_stop = std::stop_source();
    if (m_store && !m_key.isEmpty() && m_store->phase() == AppStore::Phase::Ready)
        spawn(m_store->loadDetails(m_key, m_stop.get_token()));
}

void InspectedIssue::update()
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

QString InspectedIssue::errorText() const
{
    return m_store && !isKnown() ? m_store->detailErrors().value(m_key) : QString();
}

QString InspectedIssue::title() const
{
    return isKnown() ? m_key + u" – "_s + m_issue.summary : m_key;
}

QString InspectedIssue::projectName() const
{
    return m_project ? m_project->name : m_key.section(u'-', 0, 0);
}

QString InspectedIssue::priorityTitle() const
{
    return m_issue.priority ? m_issue.priority->displayName() : displayName(PriorityLevel::None);
}

QString InspectedIssue::assigneeTitle() const
{
    return m_issue.assignee ? m_issue.assignee->name : u"Non assigné"_s;
}

QString InspectedIssue::labelsTitle() const
{
    return m_issue.labels.isEmpty() ? u"Étiquettes"_s : m_issue.labels.join(u", "_s);
}

QString InspectedIssue::dueTitle() const
{
    return m_store && m_issue.dueDate
               ? dueLabel(*m_issue.dueDate, m_store->now(), m_store->calendar())
               : QString();
}

void InspectedIssue::run(Commands::Command command)
{
    if (m_store)
        m_store->run(command, keys());
}
