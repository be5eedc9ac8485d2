import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.State
import Velmora.Theme

// The form for signing in to a site, on a card of the settings.
FormCard {
    id: root

    required property AppStore store

    title: "Connexion Jira Cloud"
    footnote: "Utilise l'e-mail de ton compte Atlassian et un token API. Pour Jira Data Center, laisse l'e-mail vide et colle un token d'accès personnel."

    Item {
        width: parent?.width ?? 0
        height: form.height + 2 * Metrics.gapLarge
        Keys.onReturnPressed: form.form.connect()
        Keys.onEnterPressed: form.form.connect()

        ConnectFormView {
            id: form
            x: Metrics.gapLarge
            y: Metrics.gapLarge
            width: parent.width - 2 * x
            store: root.store
        }
    }
}
