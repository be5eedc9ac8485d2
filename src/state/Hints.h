#pragma once

#include "commands/ShortcutHints.h"
#include "platform/Wording.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// For QML: the hints of controls that have a keyboard shortcut, in the terms of the current system.
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
    Q_PROPERTY(QString close READ close CONSTANT FINAL)
    Q_PROPERTY(QString copyBranch READ copyBranch CONSTANT FINAL)
    Q_PROPERTY(QString copyLink READ copyLink CONSTANT FINAL)
    Q_PROPERTY(QString openInBrowser READ openInBrowser CONSTANT FINAL)
    Q_PROPERTY(QString openWindow READ openWindow CONSTANT FINAL)

public:
    using QObject::QObject;

    static QString search() { return Wording::localized(searchHint()); }
    static QString newIssue() { return Wording::localized(newIssueHint()); }
    static QString reload() { return Wording::localized(reloadHint()); }
    static QString layout() { return Wording::localized(layoutHint()); }
    static QString deselect() { return Wording::localized(deselectHint()); }
    static QString close() { return Wording::localized(closeHint()); }
    static QString copyBranch() { return ofCommand(Command::CopyBranch); }
    static QString copyLink() { return ofCommand(Command::CopyLink); }
    static QString openInBrowser() { return ofCommand(Command::OpenInBrowser); }
    static QString openWindow() { return Wording::localized(openWindowHint()); }

private:
    static QString ofCommand(Command command) { return Wording::localized(commandHint(command)); }
};
