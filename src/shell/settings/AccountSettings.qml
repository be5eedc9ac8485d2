pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.State
import Velmora.Theme

// The page "Compte": the present account, and the form for signing in to a site unless the session is already on one.
SettingsPage {
    id: root

    required property AppStore store

    name: "Compte"

    Account {
        id: account
        store: root.store
    }

    When {
        shown: account.isOpen

        FormCard {
            title: account.title

            AccountRow {
                user: root.store.me
                hasUser: root.store.hasMe
                email: account.email
            }

            ValueRow {
                text: "Site"
                value: root.store.siteName
            }

            ValueRow {
                text: "Projets"
                value: root.store.projects.length
            }

            Item {
                width: parent?.width ?? 0
                height: 40

                PushButton {
                    x: Metrics.gapLarge
                    anchors.verticalCenter: parent.verticalCenter
                    height: 26
                    destructive: true
                    text: account.signOutTitle
                    onClicked: root.store.signOut()
                }
            }
        }
    }

    When {
        shown: account.needsForm

        ConnectCard {
            store: root.store
        }
    }
}
