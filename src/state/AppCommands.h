#pragma once

#include "commands/CommandTable.h"
#include "commands/ShortcutReference.h"
#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// A command as an entry of a menu.
class CommandEntry
{
    Q_GADGET
    QML_VALUE_TYPE(commandEntry)
    Q_PROPERTY(int command MEMBER command CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString shortcut MEMBER shortcut CONSTANT FINAL)
    Q_PROPERTY(bool isEnabled MEMBER isEnabled CONSTANT FINAL)

public:
    /// A `Commands.Command`.
    int command = 0;
    QString title;
    /// The shortcut in the terms of the current system, such as "Ctrl+Maj+O"; empty if there is none.
    QString shortcut;
    bool isEnabled = true;

    bool operator==(const CommandEntry &) const = default;
};

/// The commands of one window's menus in their current state: title, shortcut in the terms of the current system,
/// whether it is enabled, and the operation that carries it out. The main window has all commands, which act on the
/// issues chosen there. The window of an issue has those that do not need the main window. Commands on issues act on
/// the window's own issue there.
class AppCommands : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// The issue whose window this is; empty in the main window.
    Q_PROPERTY(QString issueKey READ issueKey WRITE setIssueKey NOTIFY changed FINAL)
    Q_PROPERTY(CommandEntry newIssue READ newIssue NOTIFY changed FINAL)
    // The groups of the menu "Tickets"
    Q_PROPERTY(QList<CommandEntry> general READ general NOTIFY changed FINAL)
    Q_PROPERTY(QList<CommandEntry> editing READ editing NOTIFY changed FINAL)
    Q_PROPERTY(QList<CommandEntry> sharing READ sharing NOTIFY changed FINAL)
    Q_PROPERTY(QList<CommandEntry> display READ display NOTIFY changed FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);

    const QString &issueKey() const { return m_issueKey; }
    void setIssueKey(const QString &key);

    CommandEntry newIssue() const { return entry(Command::NewIssue); }
    QList<CommandEntry> general() const { return entries(CommandGroup::General); }
    QList<CommandEntry> editing() const { return entries(CommandGroup::Editing); }
    QList<CommandEntry> sharing() const { return entries(CommandGroup::Sharing); }
    QList<CommandEntry> display() const { return entries(CommandGroup::Display); }

    /// Carries out a `Commands.Command`, unless it is disabled.
    Q_INVOKABLE void run(int command);
    /// Carries out the command whose shortcut was pressed. False if there is none, or if it is not available in this
    /// window or disabled.
    bool runShortcut(const KeyPress &press);
    /// The same for the keys of the window's content, such as "S".
    bool runKey(const KeyPress &press);

Q_SIGNALS:
    void storeChanged();
    void changed();
    /// In the window of an issue: its palette should open with the commands (`TogglePalette`, which also closes it), or
    /// with a picker. In the main window the store knows what the palette shows.
    void paletteRequested(Commands::Command command);

private:
    bool runOffered(std::optional<Command> command);
    CommandEntry entry(Command command) const;
    QList<CommandEntry> entries(CommandGroup group) const;
    bool isEnabled(Command command) const;
    void carryOut(Command command);

    QPointer<AppStore> m_store;
    QString m_issueKey;
};

/// Whether a command is enabled. All commands of the menu "Tickets" always are; without an issue they show a toast.
bool isCommandEnabled(Command command, AppStore::Phase phase);
/// Whether the window of an issue has the command. The other commands only have an effect in the main window.
bool isOfIssueWindows(Command command);
