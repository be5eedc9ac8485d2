pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Theme
import Velmora.Update
import Velmora.UpdateScreens

// The result of a check from the menu. Escape closes it, as the last button does.
Item {
    id: root

    required property UpdateScreens screens

    readonly property updateAlert alert: screens.alert
    readonly property bool offersChoice: alert.buttons.length > 0
    readonly property int highestText: 300

    Sheet {
        id: sheet

        name: root.alert.title
        implicitWidth: 400
        visible: true
        onClosed: root.screens.dismissAlert()

        Column {
            x: Metrics.gapSection
            width: sheet.width - 2 * x
            topPadding: Metrics.gapSection
            bottomPadding: Metrics.gapSection
            spacing: Metrics.gapMedium

            Row {
                width: parent.width
                spacing: Metrics.gap

                Symbol {
                    id: warning
                    visible: root.alert.isWarning
                    name: "exclamationmark.triangle"
                    size: 15
                    color: Theme.orangeText
                }

                AppText {
                    width: parent.width - (warning.visible ? warning.width + parent.spacing : 0)
                    role: TypeScale.Headline
                    text: root.alert.title
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
            }

            Item {
                width: parent.width
                height: Math.min(words.height, root.highestText)

                Flickable {
                    id: view
                    anchors.fill: parent
                    contentHeight: words.height
                    boundsBehavior: Flickable.StopAtBounds
                    clip: contentHeight > height

                    AppText {
                        id: words
                        width: view.width
                        color: Theme.text2
                        text: root.alert.text
                        wrapMode: Text.Wrap
                        Accessible.role: root.alert.isWarning ? Accessible.AlertMessage : Accessible.StaticText
                        Accessible.name: text
                    }
                }

                Scrolling {
                    view: view
                    ground: Theme.elevated
                }
            }

            Row {
                anchors.right: parent.right
                topPadding: Metrics.gap
                spacing: Metrics.gap

                PushButton {
                    visible: root.offersChoice
                    enabled: visible
                    text: root.offersChoice ? root.alert.buttons[1] : ""
                    onClicked: root.screens.dismissAlert()
                }

                PushButton {
                    look: PushButton.Prominent
                    text: root.offersChoice ? root.alert.buttons[0] : "OK"
                    focus: true
                    onClicked: root.screens.acceptAlert()
                }
            }
        }
    }
}
