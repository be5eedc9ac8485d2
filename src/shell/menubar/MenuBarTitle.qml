import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Theme

// The title of a menu in the menu bar.
T.MenuBarItem {
    id: root

    implicitWidth: implicitContentWidth + 20
    implicitHeight: Metrics.menuRowHeight
    hoverEnabled: true
    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.onPressAction: root.triggered()

    contentItem: AppText {
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        color: root.highlighted ? Theme.textOnAccent : Theme.text1
        text: root.text
        Accessible.ignored: true
    }

    background: Rectangle {
        radius: 7
        color: root.highlighted ? Theme.accentFill : "transparent"
    }
}
