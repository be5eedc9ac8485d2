#include "commands/ShortcutReference.h"

#include "commands/CommandTable.h"
#include "commands/ShortcutHints.h"

using namespace Qt::StringLiterals;

namespace {

ShortcutMeaning command(AppCommand command, const QString &meaning)
{
    return {commandShortcut(command), meaning};
}

QString keyOf(KeyCommand command)
{
    return keyTexts(command).last();
}

ShortcutMeaning key(KeyCommand command, const QString &meaning)
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
    return {u"Général"_s,
            {command(AppCommand::CommandPalette, u"Palette de commandes"_s),
             key(KeyCommand::NewIssue, u"Nouveau ticket"_s),
             command(AppCommand::Reload, u"Actualiser"_s),
             {pair(keyOf(KeyCommand::ShowList), keyOf(KeyCommand::ShowBoard)),
              u"Vue liste / tableau"_s}}};
}

ShortcutGroup navigation()
{
    return {u"Navigation"_s,
            {{lettersOrArrows(keyTexts(KeyCommand::MoveDown), keyTexts(KeyCommand::MoveUp)),
              u"Ticket suivant / précédent"_s},
             key(KeyCommand::OpenInspector, u"Ouvrir le ticket"_s),
             key(KeyCommand::Peek, u"Afficher / masquer l'aperçu"_s),
             key(KeyCommand::OpenWindow, u"Ouvrir dans une nouvelle fenêtre"_s),
             key(KeyCommand::Escape, u"Fermer / désélectionner"_s)}};
}

ShortcutGroup issue()
{
    return {u"Ticket"_s,
            {key(KeyCommand::PickStatus, u"Changer le statut"_s),
             key(KeyCommand::PickPriority, u"Changer la priorité"_s),
             key(KeyCommand::PickAssignee, u"Assigner"_s),
             key(KeyCommand::AssignToMe, u"M'assigner"_s),
             key(KeyCommand::PickLabels, u"Étiquettes"_s),
             {keyOf(KeyCommand::ToggleCheck) + u"  ·  ⌘clic  ·  ⇧clic"_s, u"Sélection multiple"_s},
             command(AppCommand::CopyKey, u"Copier la clé"_s),
             command(AppCommand::CopyBranch, u"Copier le nom de branche git"_s),
             command(AppCommand::CopyLink, u"Copier le lien"_s),
             command(AppCommand::OpenInBrowser, u"Ouvrir dans Jira"_s),
             {u"⌘↩ (commentaire)"_s, u"Envoyer le commentaire"_s}}};
}

} // namespace

QList<ShortcutGroup> shortcutReference()
{
    return {general(), navigation(), issue()};
}
