pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Theme
import Velmora.UpdateScreens

// Tells once, after an update, what is new in the running version.
Item {
    id: root

    required property UpdateScreens screens

    readonly property int inset: 28
    readonly property int gap: 20
    readonly property int highestNotes: 340

    signal dismissed()

    Sheet {
        id: sheet

        name: root.screens.whatsNewTitle
        implicitWidth: 520
        visible: true
        onClosed: root.dismissed()

        FocusScope {
            width: sheet.width
            implicitHeight: content.y + content.height + 24
            focus: true
            Keys.onUpPressed: scrolling.scrollBy(-1)
            Keys.onDownPressed: scrolling.scrollBy(1)
            Keys.onReturnPressed: sheet.close()
            Keys.onEnterPressed: sheet.close()

            Column {
                id: content
                x: root.inset
                y: root.inset
                width: parent.width - 2 * x
                spacing: root.gap

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
                            width: parent.width
                            role: TypeScale.Title2
                            text: root.screens.whatsNewTitle
                            Accessible.role: Accessible.Heading
                        }

                        AppText {
                            width: parent.width
                            color: Theme.text2
                            wrapMode: Text.Wrap
                            text: "L'app a été mise à jour, ta connexion Jira est conservée."
                        }
                    }
                }

                AppText {
                    visible: !root.screens.hasWhatsNewNotes
                    color: Theme.text2
                    text: "Améliorations et corrections."
                }

                Item {
                    width: parent.width
                    height: Math.min(view.contentHeight, root.highestNotes)
                    visible: root.screens.hasWhatsNewNotes

                    Flickable {
                        id: view

                        // Scrolls as little as possible until a part of the notes is visible.
                        function reveal(box: rect) {
                            const lowest = Math.min(box.y, Math.max(contentY, box.y + box.height - height));
                            contentY = Math.max(0, Math.min(lowest, contentHeight - height));
                        }

                        anchors.fill: parent
                        contentHeight: notes.height
                        boundsBehavior: Flickable.StopAtBounds
                        clip: contentHeight > height

                        ReleaseNotesView {
                            id: notes
                            width: view.width
                            screens: root.screens
                            node: root.screens.whatsNewNotes
                            fontSize: 13
                            spacing: 10
                            onRevealRequested: box => view.reveal(box)
                            onShifted: distance => view.contentY += distance
                        }
                    }

                    Scrolling {
                        id: scrolling
                        view: view
                        ground: Theme.elevated
                    }
                }

                PushButton {
                    width: parent.width
                    large: true
                    look: PushButton.Prominent
                    text: "Continuer"
                    focus: true
                    onClicked: sheet.close()
                }
            }
        }
    }
}
