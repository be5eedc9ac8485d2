#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The style that all rows of a list, or all cards of a board, share. It is one shared object, so that each row and
/// card has fewer properties of its own to update.
class IssueStyle : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    /// The colour of the bars of a priority, and of the dashes that stand for no priority.
    Q_PROPERTY(QColor ink MEMBER ink NOTIFY changed FINAL)
    Q_PROPERTY(QColor faint MEMBER faint NOTIFY changed FINAL)
    /// The colour of the texts beside the summary.
    Q_PROPERTY(QColor quiet MEMBER quiet NOTIFY changed FINAL)
    /// The colour of a finished status.
    Q_PROPERTY(QColor done MEMBER done NOTIFY changed FINAL)
    /// The outline of labels and due dates.
    Q_PROPERTY(QColor outline MEMBER outline NOTIFY changed FINAL)
    /// The colour of an overdue date, and of its outline.
    Q_PROPERTY(QColor late MEMBER late NOTIFY changed FINAL)
    Q_PROPERTY(QColor lateOutline MEMBER lateOutline NOTIFY changed FINAL)
    /// The background of a cell under the pointer.
    Q_PROPERTY(QColor cellFill MEMBER cellFill NOTIFY changed FINAL)
    /// The background of a cell that is pressed.
    Q_PROPERTY(QColor cellPressed MEMBER cellPressed NOTIFY changed FINAL)

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
    QColor cellPressed;

Q_SIGNALS:
    void changed();
};
