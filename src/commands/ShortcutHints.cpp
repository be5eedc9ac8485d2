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
    case Qt::Key_PageDown:
        return u"Page suiv."_s;
    case Qt::Key_PageUp:
        return u"Page préc."_s;
    case Qt::Key_Home:
        return u"Début"_s;
    case Qt::Key_End:
        return u"Fin"_s;
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

QStringList keyTexts(Command command)
{
    QStringList texts;
    for (const KeyBinding &binding : keyBindings()) {
        if (binding.command == command)
            texts.append(keyText(binding));
    }
    texts.removeDuplicates();
    return texts;
}

QString withShortcut(const QString &words, Command command)
{
    return inBrackets(words, commandShortcut(command));
}

QString withKey(const QString &words, Command command)
{
    return inBrackets(words, keyTexts(command).value(keyTexts(command).size() - 1));
}

QString commandHint(Command command)
{
    return withShortcut(commandTitle(command, InspectorState::Closed), command);
}

QString searchHint()
{
    return withShortcut(u"Rechercher"_s, Command::TogglePalette);
}

QString newIssueHint()
{
    return withKey(commandTitle(Command::NewIssue, InspectorState::Closed), Command::NewIssue);
}

QString reloadHint()
{
    return commandHint(Command::Reload);
}

QString openWindowHint()
{
    return withKey(u"Ouvrir dans une nouvelle fenêtre"_s, Command::OpenWindow);
}

QString layoutHint()
{
    return withKey(u"Liste"_s, Command::ShowList) + u" · "_s +
           withKey(u"Tableau"_s, Command::ShowBoard);
}

QString selectHint()
{
    return withKey(u"Sélectionner"_s, Command::ToggleCheck);
}

QString deselectHint()
{
    return withKey(u"Désélectionner"_s, Command::Escape);
}

QString closeHint()
{
    return withKey(u"Fermer"_s, Command::Escape);
}
