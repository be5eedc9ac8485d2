#pragma once

#include "screens/detail/subissues/SubIssue.h"
#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

#include <stop_token>

/// An open issue with the newest known record, kept up to date. The full record is fetched when the issue is opened, or
/// once there is a session.
class OpenIssue : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(QString key READ key WRITE setKey NOTIFY keyChanged FINAL REQUIRED)
    /// A list that contains only the key, as the editing operations expect it.
    Q_PROPERTY(QStringList keys READ keys NOTIFY keyChanged FINAL)
    /// The record, with its texts on one line. Empty while nothing is known of the issue.
    Q_PROPERTY(Issue issue READ issue NOTIFY changed FINAL)
    Q_PROPERTY(bool isKnown READ isKnown NOTIFY changed FINAL)
    /// The reason why the issue could not be fetched. Empty after a success, and also after a failure if the issue is
    /// known anyway.
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed FINAL)
    /// The key, followed by the summary once it is known.
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(bool hasProject READ hasProject NOTIFY changed FINAL)
    Q_PROPERTY(Project project READ project NOTIFY changed FINAL)
    /// The project's name or, if it is unknown, the part of the key before the dash.
    Q_PROPERTY(QString projectName READ projectName NOTIFY changed FINAL)
    Q_PROPERTY(QString projectKey READ projectKey NOTIFY changed FINAL)
    Q_PROPERTY(bool isServiceDesk READ isServiceDesk NOTIFY changed FINAL)
    /// The parent of the issue; empty without one.
    Q_PROPERTY(QString parentKey READ parentKey NOTIFY changed FINAL)
    Q_PROPERTY(QString parentSummary READ parentSummary NOTIFY changed FINAL)
    Q_PROPERTY(bool hasParentType READ hasParentType NOTIFY changed FINAL)
    Q_PROPERTY(IssueType parentType READ parentType NOTIFY changed FINAL)
    Q_PROPERTY(QList<SubIssue> subIssues READ subIssues NOTIFY changed FINAL)
    /// The titles of the chips.
    Q_PROPERTY(QString statusTitle READ statusTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString priorityTitle READ priorityTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString assigneeTitle READ assigneeTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString labelsTitle READ labelsTitle NOTIFY changed FINAL)
    /// The due date in words, or the name of the property without one.
    Q_PROPERTY(QString dueTitle READ dueTitle NOTIFY changed FINAL)
    /// The due date is before today and the issue is not closed.
    Q_PROPERTY(bool isOverdue READ isOverdue NOTIFY changed FINAL)
    /// The due date, or today without one, and today: texts such as "2026-10-31".
    Q_PROPERTY(QString dueDay READ dueDay NOTIFY changed FINAL)
    Q_PROPERTY(QString today READ today NOTIFY changed FINAL)
    /// The user's locale by its name, and the time zone by its IANA id, in which documents show dates.
    Q_PROPERTY(QString localeName READ localeName NOTIFY changed FINAL)
    Q_PROPERTY(QString timeZone READ timeZone NOTIFY changed FINAL)

public:
    using QObject::QObject;
    ~OpenIssue() override;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    const QString &key() const { return m_key; }
    void setKey(const QString &key);
    QStringList keys() const { return {m_key}; }
    const Issue &issue() const { return m_issue; }
    bool isKnown() const { return !m_issue.key.isEmpty(); }
    QString errorText() const;
    QString title() const;
    bool hasProject() const { return m_project.has_value(); }
    Project project() const { return m_project.value_or(Project()); }
    QString projectName() const;
    const QString &projectKey() const { return m_issue.projectKey; }
    bool isServiceDesk() const { return m_project && m_project->isServiceDesk; }
    QString parentKey() const { return m_issue.parent ? m_issue.parent->key : QString(); }
    QString parentSummary() const { return m_issue.parentSummary(); }
    bool hasParentType() const { return m_issue.parent && m_issue.parent->type; }
    IssueType parentType() const;
    QList<SubIssue> subIssues() const { return ::subIssues(m_issue.subtasks); }
    QString statusTitle() const { return m_issue.status.displayName(); }
    QString priorityTitle() const;
    QString assigneeTitle() const;
    QString labelsTitle() const;
    QString dueTitle() const;
    bool isOverdue() const;
    QString dueDay() const;
    QString today() const;
    QString localeName() const;
    QString timeZone() const;

    /// Fetches the issue. Does nothing without a session. A change to another issue cancels the fetch.
    Q_INVOKABLE void load();
    /// Carries out a command on it.
    Q_INVOKABLE void run(Commands::Command command);
    /// Changes the title of an issue, perhaps of the one that was open until now. A text without words changes nothing.
    Q_INVOKABLE void rename(const QString &key, const QString &title);
    /// Sets the due date to a day such as "2026-10-31"; an empty text clears it.
    Q_INVOKABLE void setDueDay(const QString &day);
    /// Focuses another issue and shows it in the inspector.
    Q_INVOKABLE void openOther(const QString &key);
    /// Opens a link of one of its texts in the browser or the mail program.
    Q_INVOKABLE void openLink(const QString &address);

Q_SIGNALS:
    void storeChanged();
    void keyChanged();
    void changed();

private:
    void begin();
    void update();

    QPointer<AppStore> m_store;
    QString m_key;
    Issue m_issue;
    std::optional<Project> m_project;
    std::stop_source m_stop;
};
