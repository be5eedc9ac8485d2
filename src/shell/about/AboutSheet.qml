pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme
import Velmora.UpdateScreens

// The version of the program, and how fast it is in this run.
Item {
    id: root

    required property UpdateScreens updates

    readonly property int inset: 24

    Sheet {
        id: sheet

        name: "À propos de Velmora"
        implicitWidth: 460
        visible: true
        onClosed: About.hide()

        Column {
            x: root.inset
            width: sheet.width - 2 * x
            topPadding: root.inset
            bottomPadding: root.inset
            spacing: Metrics.gapSection

            Row {
                width: parent.width
                spacing: 16

                AppGlyph {
                    id: glyph
                    size: 52
                }

                Column {
                    width: parent.width - glyph.width - parent.spacing
                    anchors.verticalCenter: parent.verticalCenter
                    spacing: 2

                    AppText {
                        role: TypeScale.Title2
                        text: "Velmora"
                        Accessible.role: Accessible.Heading
                        Accessible.name: text
                    }

                    AppText {
                        width: parent.width
                        color: Theme.text2
                        text: About.version(root.updates.updater.currentVersion, root.updates.updater.currentBuild)
                        wrapMode: Text.Wrap
                        Accessible.role: Accessible.StaticText
                        Accessible.name: text
                    }
                }
            }

            FormCard {
                title: "Vitesse de cette exécution"
                footnote: "Rien n'est envoyé ni enregistré."

                ValueRow {
                    text: "Du lancement à la première image"
                    value: About.start
                }

                ValueRow {
                    text: "De la touche à l'image, la dernière"
                    value: About.lastKey
                }

                ValueRow {
                    text: "De la touche à l'image, la plus lente"
                    value: About.slowestKey
                }

                ValueRow {
                    text: "Mémoire résidente"
                    value: About.memory
                }
            }

            PushButton {
                width: parent.width
                large: true
                look: PushButton.Prominent
                text: "Fermer"
                focus: true
                onClicked: sheet.close()
            }
        }
    }
}
