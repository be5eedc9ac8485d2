pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Theme
import Velmora.Update
import Velmora.UpdateScreens

// The cards of the page "Mises à jour" in the settings.
Column {
    id: root

    required property UpdateScreens screens

    readonly property Updater updater: screens.updater

    // A part of the release notes has the focus, in the coordinates of this item.
    signal revealRequested(box: rect)
    // What is in sight of the release notes has moved by a distance.
    signal shifted(distance: real)

    width: parent?.width ?? 0
    spacing: 16

    FormCard {
        title: "Version installée"

        ValueRow {
            text: "Version"
            value: root.updater.currentVersion
        }

        ValueRow {
            text: "Build"
            value: root.updater.currentBuild
        }

        ValueRow {
            visible: value !== ""
            text: "Dernière vérification"
            value: root.screens.lastCheck
        }
    }

    FormCard {
        title: "Mises à jour automatiques"
        footnote: root.screens.footnote

        FormRow {
            text: "Rechercher les mises à jour automatiquement"

            ToggleSwitch {
                name: "Rechercher les mises à jour automatiquement"
                checked: root.updater.automaticChecks
                onClicked: root.updater.automaticChecks = !root.updater.automaticChecks
            }
        }

        FormRow {
            enabled: root.updater.automaticChecks
            text: "Les télécharger en arrière-plan"

            ToggleSwitch {
                name: "Les télécharger en arrière-plan"
                checked: root.updater.automaticDownloads
                onClicked: root.updater.automaticDownloads = !root.updater.automaticDownloads
            }
        }

        FormRow {
            text: "Canal"

            InputField {
                width: 300
                height: 28
                name: "Canal"
                placeholderText: root.screens.feedPrompt
                text: root.updater.customFeed
                inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
                onTextEdited: root.updater.customFeed = text
            }
        }
    }

    FormCard {
        UpdateStatusRow {
            screens: root.screens
        }

        When {
            shown: root.screens.hasNotes

            Item {
                width: parent?.width ?? 0
                height: notes.height + 2 * Metrics.gapMedium

                ReleaseNotesView {
                    id: notes
                    x: Metrics.gapLarge
                    y: Metrics.gapMedium
                    width: parent.width - 2 * x
                    screens: root.screens
                    node: root.screens.notes
                    fontSize: 12
                    spacing: 6
                    onRevealRequested: box => root.revealRequested(notes.mapToItem(root, box))
                    onShifted: distance => root.shifted(distance)
                }
            }
        }
    }
}
