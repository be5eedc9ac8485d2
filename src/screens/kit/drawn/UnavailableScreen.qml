import QtQuick
import Velmora.Kit
import Velmora.Theme

// The screen shown when there is nothing to list: a symbol, a title, a sentence and one action.
Item {
    id: root

    required property string symbol
    required property string title
    required property string description
    required property string action
    property bool isProminent: false
    readonly property int textMaximum: 520
    // The part of the height by which the text stands above the geometric centre.
    readonly property real lift: 0.03

    signal actionChosen()

    Accessible.role: Accessible.Grouping
    Accessible.name: root.title
    Accessible.description: root.description

    Column {
        width: Math.min(root.width - 2 * Metrics.pageMargin, root.textMaximum)
        anchors.horizontalCenter: parent.horizontalCenter
        // Slightly above the geometric centre, where the centre is perceived to be.
        y: (root.height - height) / 2 - root.height * root.lift

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: root.symbol
            size: 38
            color: Theme.text3
        }

        Item { width: 1; height: Metrics.gapLarge }

        AppText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            role: TypeScale.Title3
            text: root.title
            wrapMode: Text.Wrap
        }

        Item { width: 1; height: Metrics.gapSmall }

        AppText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            role: TypeScale.Body
            color: Theme.text2
            text: root.description
            wrapMode: Text.Wrap
        }

        Item { width: 1; height: Metrics.gapSection }

        PushButton {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.action
            visible: root.action !== ""
            look: root.isProminent ? PushButton.Prominent : PushButton.Glass
            onClicked: root.actionChosen()
        }
    }
}
