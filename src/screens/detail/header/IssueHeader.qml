import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The breadcrumb on its glass. Beside the list it ends in a button that closes the issue.
GlassPanel {
    id: root

    required property OpenIssue issue
    property bool inWindow: false

    signal closed()
    // Another issue was chosen.
    signal chosen(key: string)

    height: 36
    shadow: "capsule"
    color: Theme.glass

    Breadcrumb {
        x: Metrics.gapLarge
        width: (root.inWindow ? parent.width - Metrics.gapLarge : close.x) - x - Metrics.gapSmall
        height: parent.height
        issue: root.issue
        onChosen: key => root.chosen(key)
    }

    IconButton {
        id: close
        anchors.right: parent.right
        anchors.rightMargin: Metrics.gapSmall
        anchors.verticalCenter: parent.verticalCenter
        visible: !root.inWindow
        side: 24
        corner: side / 2
        name: "Fermer l'inspecteur"
        hint: Hints.close
        symbol: "xmark"
        symbolSize: 9.5
        symbolWeight: "semibold"
        onClicked: root.closed()
    }
}
