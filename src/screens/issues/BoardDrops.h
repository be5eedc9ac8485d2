#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The issues that a drop of these keys moves: for each checked one all checked issues, which may repeat, for any other
/// it alone.
QStringList movedKeys(const QStringList &dropped, const QSet<QString> &checked);
/// The keys in a dropped text: one on a line.
QStringList droppedKeys(const QString &text);
/// What happens when issues are dropped on a column of the board.
class BoardDrops : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store MEMBER m_store NOTIFY storeChanged FINAL REQUIRED)

public:
    using QObject::QObject;

    /// Takes the issues of a dropped text to a status.
    Q_INVOKABLE void drop(const QString &text, const IssueStatus &status);

Q_SIGNALS:
    void storeChanged();

private:
    QPointer<AppStore> m_store;
};
