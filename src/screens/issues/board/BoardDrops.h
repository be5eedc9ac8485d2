#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The issues that a drop of these keys moves: each checked key stands for all checked issues, which may then appear
/// repeatedly, and any other key for its issue alone.
QStringList movedKeys(const QStringList &dropped, const QSet<QString> &checked);
/// The keys in a dropped text, one per line.
QStringList droppedKeys(const QString &text);
/// The index of the column at a horizontal position on the board, which has `count` columns of equal width with a gap
/// after each. -1 beside the columns. Half of the gap on each side belongs to the column, so that a drop there is not
/// lost.
int columnAt(double x, int width, int gap, int count);
/// Handles drops of issues on the columns of the board.
class BoardDrops : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store MEMBER m_store NOTIFY storeChanged FINAL REQUIRED)

public:
    using QObject::QObject;

    /// The index of the column of the store's board at a horizontal position, measured from the left edge of the first
    /// column. -1 beside the columns.
    Q_INVOKABLE int columnAt(double x, int width, int gap) const;
    /// Moves the issues of a dropped text to the status of a column. False if there is no such column.
    Q_INVOKABLE bool dropOn(const QString &text, int column);

Q_SIGNALS:
    void storeChanged();

private:
    QPointer<AppStore> m_store;
};
