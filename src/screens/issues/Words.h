#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Texts of screens in the words of this system: the code has them in the Mac's, "Actualiser (⌘R)".
class Words : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE static QString localized(const QString &macText);
};
