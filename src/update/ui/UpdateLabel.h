#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// A symbol with a title and, on the badge, a line below it.
struct UpdateLabel
{
    Q_GADGET
    QML_VALUE_TYPE(updateLabel)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString subtitle MEMBER subtitle CONSTANT FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT FINAL)

public:
    QString title;
    QString subtitle;
    QString symbol;

    bool operator==(const UpdateLabel &) const = default;
};
