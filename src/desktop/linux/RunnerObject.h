#pragma once

#include "desktop/Activation.h"
#include "desktop/IssueFinder.h"

#include <QDBusArgument>
#include <QVariantMap>

/// One result of a search, as KRunner reads it.
struct RunnerMatch
{
    QString id;
    QString text;
    QString icon;
    /// One of KRunner's values for the kind of a match.
    int type = 0;
    /// From 0 to 1.
    double relevance = 0;
    QVariantMap properties;
};
Q_DECLARE_METATYPE(RunnerMatch)

/// An action that can be chosen for a result.
struct RunnerAction
{
    QString id;
    QString text;
    QString icon;
};
Q_DECLARE_METATYPE(RunnerAction)

QDBusArgument &operator<<(QDBusArgument &argument, const RunnerMatch &match);
const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerMatch &match);
QDBusArgument &operator<<(QDBusArgument &argument, const RunnerAction &action);
const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerAction &action);

/// The interface by which KRunner searches in programs.
class RunnerObject : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.krunner1")

public:
    /// The finder must outlive this object.
    explicit RunnerObject(IssueFinder &finder);

    /// None: a result can only be opened.
    Q_SCRIPTABLE QList<RunnerAction> Actions();
    Q_SCRIPTABLE QList<RunnerMatch> Match(const QString &query);
    /// The token for the next `Run`.
    Q_SCRIPTABLE void SetActivationToken(const QString &token);
    /// Opens the window of the issue. Unknown ids are ignored.
    Q_SCRIPTABLE void Run(const QString &id, const QString &action);

Q_SIGNALS:
    void asked(const Activation &activation, const QByteArray &request);

private:
    IssueFinder &m_finder;
    Activation m_activation;
};
