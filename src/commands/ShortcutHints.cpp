#include "commands/ShortcutHints.h"

#include "commands/CommandTable.h"
#include "commands/KeyRouting.h"

using namespace Qt::StringLiterals;

namespace {

QString nameOf(Qt::Key key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return u"↩"_s;
    case Qt::Key_Space:
        return u"Espace"_s;
    case Qt::Key_Escape:
        return u"Échap"_s;
    case Qt::Key_Down:
        return u"↓"_s;
    case Qt::Key_Up:
        return u"↑"_s;
    default:
        return {};
    }
}

QString keyText(const KeyBinding &binding)
{
    const QString key =
        binding.character ? QString(QChar(binding.character).toUpper()) : nameOf(binding.key);
    return binding.flags == KeyBinding::Flags::ControlOnly ? u'⌘' + key : key;
}

QString inBrackets(const QString &words, const QString &keys)
{
    return keys.isEmpty() ? words : words + u" ("_s + keys + u')';
}

} // namespace

QStringList keyTexts(KeyCommand command)
{
    QStringList texts;
    for (const KeyBinding &binding : keyBindings()) {
        if (binding.command == command)
            texts.append(keyText(binding));
    }
    texts.removeDuplicates();
    return texts;
}

QString withShortcut(const QString &words, AppCommand command)
{
    return inBrackets(words, commandShortcut(command));
}

QString withKey(const QString &words, KeyCommand command)
{
    return inBrackets(words, keyTexts(command).value(keyTexts(command).size() - 1));
}

QString commandHint(AppCommand command)
{
    return withShortcut(commandTitle(command, InspectorState::Closed), command);
}

QString searchHint()
{
    return withShortcut(u"Rechercher"_s, AppCommand::CommandPalette);
}

QString newIssueHint()
{
    return withKey(commandTitle(AppCommand::NewIssue, InspectorState::Closed),
                   KeyCommand::NewIssue);
}

QString reloadHint()
{
    return commandHint(AppCommand::Reload);
}

QString openWindowHint()
{
    return withKey(u"Ouvrir dans une nouvelle fenêtre"_s, KeyCommand::OpenWindow);
}

QString layoutHint()
{
    return withKey(u"Liste"_s, KeyCommand::ShowList) + u" · "_s +
           withKey(u"Tableau"_s, KeyCommand::ShowBoard);
}

QString selectHint()
{
    return withKey(u"Sélectionner"_s, KeyCommand::ToggleCheck);
}

QString deselectHint()
{
    return withKey(u"Désélectionner"_s, KeyCommand::Escape);
}

QString closeHint()
{
    return withKey(u"Fermer"_s, KeyCommand::Escape);
}
