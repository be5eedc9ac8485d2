#pragma once

#include "platform/Wording.h"
#include "state/ShortcutHints.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The hints of controls that a key can do too, in this system's words, for QML.
class Hints : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString search READ search CONSTANT FINAL)
    Q_PROPERTY(QString newIssue READ newIssue CONSTANT FINAL)
    Q_PROPERTY(QString reload READ reload CONSTANT FINAL)
    Q_PROPERTY(QString layout READ layout CONSTANT FINAL)
    Q_PROPERTY(QString deselect READ deselect CONSTANT FINAL)

public:
    using QObject::QObject;

    static QString search() { return Wording::localized(searchHint()); }
    static QString newIssue() { return Wording::localized(newIssueHint()); }
    static QString reload() { return Wording::localized(reloadHint()); }
    static QString layout() { return Wording::localized(layoutHint()); }
    static QString deselect() { return Wording::localized(deselectHint()); }
};
