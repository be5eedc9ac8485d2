import QtQuick
import Velmora.Kit
import Velmora.Theme
import Velmora.Update
import Velmora.UpdateScreens

// What the updater is doing, and the button for what the user can do about it. A long text wraps beside the button.
Item {
    id: root

    required property UpdateScreens screens

    readonly property int kind: screens.updater.state.kind
    readonly property bool isFailure: kind === UpdateKinds.Kind.Failed
    readonly property bool isGood: kind === UpdateKinds.Kind.Ready || kind === UpdateKinds.Kind.UpToDate

    width: parent?.width ?? 0
    implicitHeight: Math.max(48, words.height + 2 * Metrics.gapMedium)

    // Screen readers announce a notification whose name changes.
    Item {
        id: status
        anchors.left: parent.left
        anchors.leftMargin: Metrics.gapLarge
        anchors.right: buttons.left
        anchors.rightMargin: Metrics.gapLarge
        height: parent.height
        Accessible.role: root.isFailure ? Accessible.AlertMessage : Accessible.Notification
        Accessible.name: root.screens.status.title

        Symbol {
            id: symbol
            anchors.verticalCenter: parent.verticalCenter
            name: root.screens.status.symbol
            color: root.isFailure ? Theme.orangeText : root.isGood ? Theme.accent : Theme.text2
        }

        AppText {
            id: words
            anchors.left: symbol.right
            anchors.leftMargin: Metrics.panelPadding
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            wrapMode: Text.Wrap
            color: root.isFailure ? Theme.orangeText : Theme.text1
            text: root.screens.status.title
            Accessible.ignored: true
        }
    }

    Row {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: Metrics.gapLarge
        anchors.verticalCenter: parent.verticalCenter

        PushButton {
            height: 28
            visible: root.screens.offersCheck
            enabled: visible && root.screens.updater.hasFeed
            text: "Rechercher maintenant"
            onClicked: root.screens.updater.checkNow()
        }

        PushButton {
            height: 28
            visible: root.screens.offersInstall
            enabled: visible
            look: PushButton.Prominent
            text: "Redémarrer et installer"
            onClicked: root.screens.updater.installAndRelaunch()
        }
    }
}
