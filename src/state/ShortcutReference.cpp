#include "state/ShortcutReference.h"

#include "state/CommandTable.h"

using namespace Qt::StringLiterals;

namespace {

ShortcutMeaning command(AppCommand command, const QString &meaning)
{
    return {commandShortcut(command), meaning};
}

ShortcutGroup general()
{
    return {u"Général"_s,
            {command(AppCommand::CommandPalette, u"Palette de commandes"_s),
             {u"C"_s, u"Nouveau ticket"_s},
             command(AppCommand::Reload, u"Actualiser"_s),
             {u"1 / 2"_s, u"Vue liste / tableau"_s}}};
}

ShortcutGroup navigation()
{
    return {u"Navigation"_s,
            {{u"J / K  ou  ↓ / ↑"_s, u"Ticket suivant / précédent"_s},
             {u"↩"_s, u"Ouvrir le ticket"_s},
             {u"Espace"_s, u"Afficher / masquer l'aperçu"_s},
             {u"⌘↩"_s, u"Ouvrir dans une nouvelle fenêtre"_s},
             {u"Échap"_s, u"Fermer / désélectionner"_s}}};
}

ShortcutGroup issue()
{
    return {u"Ticket"_s,
            {{u"S"_s, u"Changer le statut"_s},
             {u"P"_s, u"Changer la priorité"_s},
             {u"A"_s, u"Assigner"_s},
             {u"I"_s, u"M'assigner"_s},
             {u"L"_s, u"Étiquettes"_s},
             {u"X  ·  ⌘clic  ·  ⇧clic"_s, u"Sélection multiple"_s},
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
