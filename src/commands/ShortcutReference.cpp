#include "commands/ShortcutReference.h"

#include "commands/CommandTable.h"
#include "commands/ShortcutHints.h"

using namespace Qt::StringLiterals;

namespace {

ShortcutMeaning command(Command command, const QString &meaning)
{
    return {commandShortcut(command), meaning};
}

QString keyOf(Command command)
{
    return keyTexts(command).last();
}

ShortcutMeaning key(Command command, const QString &meaning)
{
    return {keyOf(command), meaning};
}

QString pair(const QString &first, const QString &second)
{
    return first + u" / "_s + second;
}

QString lettersOrArrows(const QStringList &down, const QStringList &up)
{
    return pair(down.last(), up.last()) + u"  ou  "_s + pair(down.first(), up.first());
}

ShortcutGroup general()
{
    return {
        u"Général"_s,
        {command(Command::TogglePalette, u"Palette de commandes"_s),
         key(Command::NewIssue, u"Nouveau ticket"_s),
         command(Command::Reload, u"Actualiser"_s),
         {pair(keyOf(Command::ShowList), keyOf(Command::ShowBoard)), u"Vue liste / tableau"_s}}};
}

ShortcutGroup navigation()
{
    return {u"Navigation"_s,
            {{lettersOrArrows(keyTexts(Command::MoveDown), keyTexts(Command::MoveUp)),
              u"Ticket suivant / précédent"_s},
             key(Command::OpenIssue, u"Ouvrir le ticket"_s),
             key(Command::Peek, u"Afficher / masquer l'aperçu"_s),
             key(Command::OpenWindow, u"Ouvrir dans une nouvelle fenêtre"_s),
             key(Command::Escape, u"Fermer / désélectionner"_s)}};
}

ShortcutGroup issue()
{
    return {u"Ticket"_s,
            {key(Command::PickStatus, u"Changer le statut"_s),
             key(Command::PickPriority, u"Changer la priorité"_s),
             key(Command::PickAssignee, u"Assigner"_s),
             key(Command::AssignToMe, u"M'assigner"_s),
             key(Command::PickLabels, u"Étiquettes"_s),
             {keyOf(Command::ToggleCheck) + u"  ·  ⌘clic  ·  ⇧clic"_s, u"Sélection multiple"_s},
             command(Command::CopyKeys, u"Copier la clé"_s),
             command(Command::CopyBranch, u"Copier le nom de branche git"_s),
             command(Command::CopyLink, u"Copier le lien"_s),
             command(Command::OpenInBrowser, u"Ouvrir dans Jira"_s),
             {u"⌘↩ (commentaire)"_s, u"Envoyer le commentaire"_s}}};
}

} // namespace

QList<ShortcutGroup> shortcutReference()
{
    return {general(), navigation(), issue()};
}
