#include "shell/IssueWindowContent.h"

#include "async/Spawn.h"

using namespace Qt::StringLiterals;

void IssueWindowContent::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        for (const auto change :
             {&AppStore::issuesChanged, &AppStore::detailsChanged, &AppStore::myOpenIssuesChanged,
              &AppStore::detailErrorsChanged, &AppStore::projectsChanged})
            connect(m_store, change, this, &IssueWindowContent::follow);
        connect(m_store, &AppStore::phaseChanged, this, &IssueWindowContent::load);
    }
    Q_EMIT storeChanged();
    follow();
    load();
}

void IssueWindowContent::setKey(const QString &key)
{
    if (m_key == key)
        return;
    m_key = key;
    Q_EMIT keyChanged();
    follow();
    load();
}

void IssueWindowContent::follow()
{
    m_issue = m_store ? m_store->issue(m_key) : std::nullopt;
    Q_EMIT changed();
}

void IssueWindowContent::load()
{
    if (m_store && !m_key.isEmpty() && m_store->phase() == AppStore::Phase::Ready)
        spawn(m_store->loadDetails(m_key));
}

QString IssueWindowContent::errorText() const
{
    return m_store ? m_store->detailErrors().value(m_key) : QString();
}

QString IssueWindowContent::title() const
{
    return m_issue ? m_key + u" – "_s + (*m_issue)->summary : m_key;
}

QString IssueWindowContent::projectName() const
{
    const auto project =
        m_store && m_issue ? m_store->project((*m_issue)->projectKey) : std::nullopt;
    return project ? project->name : QString();
}
