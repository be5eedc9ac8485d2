#pragma once

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
    /// The titles of the chips.
    Q_PROPERTY(QString statusTitle READ statusTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString priorityTitle READ priorityTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString assigneeTitle READ assigneeTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString labelsTitle READ labelsTitle NOTIFY changed FINAL)
    /// Empty without a due date.
    Q_PROPERTY(QString dueTitle READ dueTitle NOTIFY changed FINAL)

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
    QString statusTitle() const { return m_issue.status.displayName(); }
    QString priorityTitle() const;
    QString assigneeTitle() const;
    QString labelsTitle() const;
    QString dueTitle() const;

    /// Fetches the issue. Does nothing without a session. A change to another issue cancels the fetch.
    Q_INVOKABLE void load();
    /// Carries out a command on it.
    Q_INVOKABLE void run(Commands::Command command);

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
