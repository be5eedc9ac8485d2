#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// What the window of an issue of its own shows: the best known record, fetched in full once there is a session.
class IssueWindowContent : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(QString key READ key WRITE setKey NOTIFY keyChanged FINAL REQUIRED)
    /// The record is known.
    Q_PROPERTY(bool isKnown READ isKnown NOTIFY changed FINAL)
    Q_PROPERTY(Issue issue READ issue NOTIFY changed FINAL)
    /// Why it could not be fetched; empty while it could.
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed FINAL)
    /// The key, and the summary once it is known.
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString projectName READ projectName NOTIFY changed FINAL)
    /// "Étiquettes" of the issue, separated by commas.
    Q_PROPERTY(QString labels READ labels NOTIFY changed FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    const QString &key() const { return m_key; }
    void setKey(const QString &key);
    bool isKnown() const { return m_issue.has_value(); }
    Issue issue() const { return m_issue ? **m_issue : Issue(); }
    QString errorText() const;
    QString title() const;
    QString projectName() const;
    QString labels() const { return issue().labels.join(QStringLiteral(", ")); }

Q_SIGNALS:
    void storeChanged();
    void keyChanged();
    void changed();

private:
    void follow();
    void load();

    QPointer<AppStore> m_store;
    QString m_key;
    std::optional<SharedIssue> m_issue;
};
