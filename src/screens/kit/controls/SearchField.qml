import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A floating search field in the shape of a capsule, with a symbol, and with a button that clears it while there is
/// text.
InputField {
    id: root

    implicitHeight: Metrics.capsuleHeight
    corner: height / 2
    glass: true
    leftPadding: 32
    Accessible.searchEdit: true
    rightPadding: clear.visible ? 30 : 12

    Symbol {
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        size: 11.5
        color: root.enabled ? Theme.text3 : Theme.text4
    }

    IconButton {
        id: clear

        anchors.right: parent.right
        anchors.rightMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        visible: root.length > 0
        focusPolicy: Qt.NoFocus
        name: "Effacer la recherche"
        symbol: "xmark"
        symbolSize: 8.5
        symbolWeight: "semibold"
        side: 20
        corner: 10
        onClicked: root.clear()
    }
}
