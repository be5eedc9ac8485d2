#pragma once

#include <QColor>
#include <QObject>
#include <QQmlComponent>
#include <QtQml/qqmlregistration.h>

/// What all rows of a list, or all cards of a board, have in common. They share one object, so that each has less of its
/// own to keep up to date.
class IssueStyle : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    /// Of the bars of a priority, and of the dashes of none.
    Q_PROPERTY(QColor ink MEMBER ink NOTIFY changed FINAL)
    Q_PROPERTY(QColor faint MEMBER faint NOTIFY changed FINAL)
    /// Of what stands beside the summary.
    Q_PROPERTY(QColor quiet MEMBER quiet NOTIFY changed FINAL)
    /// Of a finished status.
    Q_PROPERTY(QColor done MEMBER done NOTIFY changed FINAL)
    /// Round labels and due dates.
    Q_PROPERTY(QColor outline MEMBER outline NOTIFY changed FINAL)
    /// Of a due date that has passed, and round it.
    Q_PROPERTY(QColor late MEMBER late NOTIFY changed FINAL)
    Q_PROPERTY(QColor lateOutline MEMBER lateOutline NOTIFY changed FINAL)
    /// Of a cell under the pointer.
    Q_PROPERTY(QColor cellFill MEMBER cellFill NOTIFY changed FINAL)
    /// Makes the text of a caption: a `RowText`.
    Q_PROPERTY(QQmlComponent *caption MEMBER caption NOTIFY changed FINAL)

public:
    using QObject::QObject;

    QColor ink;
    QColor faint;
    QColor quiet;
    QColor done;
    QColor outline;
    QColor late;
    QColor lateOutline;
    QColor cellFill;
    QQmlComponent *caption = nullptr;

Q_SIGNALS:
    void changed();
};
