pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme

// Tells that changes are still being sent while the program ends, and lets the user decide.
Item {
    id: root

    required property Farewell farewell

    Sheet {
        id: sheet

        name: root.farewell.title
        implicitWidth: 400
        visible: true
        onClosed: {
            if (root.farewell.isShown)
                root.farewell.stay();
        }

        Item {
            width: sheet.width
            implicitHeight: column.implicitHeight + 2 * Metrics.gapSection

            Column {
                id: column

                anchors.left: parent.left
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.margins: Metrics.gapSection
                spacing: Metrics.gapMedium

                AppText {
                    width: parent.width
                    role: TypeScale.Headline
                    text: root.farewell.title
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }

                AppText {
                    width: parent.width
                    color: Theme.text2
                    text: root.farewell.text
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }

                Row {
                    anchors.right: parent.right
                    topPadding: Metrics.gap
                    spacing: Metrics.gap

                    PushButton {
                        text: "Quitter quand même"
                        onClicked: root.farewell.leave()
                    }

                    PushButton {
                        look: PushButton.Prominent
                        text: "Rester"
                        focus: true
                        onClicked: root.farewell.stay()
                    }
                }
            }
        }
    }
}
