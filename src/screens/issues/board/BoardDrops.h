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
/// The column at a place across the board, of `count` columns of one width with a gap after each; -1 beside them. Half the
/// gap on each side of a column is the column's: whoever drops there means it.
int columnAt(double x, int width, int gap, int count);
/// What happens when issues are dropped on a column of the board.
class BoardDrops : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store MEMBER m_store NOTIFY storeChanged FINAL REQUIRED)

public:
    using QObject::QObject;

    /// The column of the store's board at a place, counted from the left edge of the first one; -1 beside them.
    Q_INVOKABLE int columnAt(double x, int width, int gap) const;
    /// Takes the issues of a dropped text to the status of a column; false if there is no such column.
    Q_INVOKABLE bool dropOn(const QString &text, int column);

Q_SIGNALS:
    void storeChanged();

private:
    QPointer<AppStore> m_store;
};
