#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// A short text that a row may have between its summary and its assignee: a label's name, the number of further labels,
/// a due date.
class RowCaption
{
    Q_GADGET
    QML_VALUE_TYPE(rowCaption)
    Q_PROPERTY(double x MEMBER x CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)
    Q_PROPERTY(QFont font MEMBER font CONSTANT FINAL)
    Q_PROPERTY(double leading MEMBER leading CONSTANT FINAL)
    Q_PROPERTY(QColor color MEMBER color CONSTANT FINAL)

public:
    /// Logical pixels from the row's left edge.
    double x = 0;
    QString text;
    QFont font;
    /// What its line leaves free above and below it.
    double leading = 0;
    QColor color;

    bool operator==(const RowCaption &) const = default;
};
