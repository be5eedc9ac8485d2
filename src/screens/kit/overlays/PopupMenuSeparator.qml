import QtQuick
import QtQuick.Templates as T
import Velmora.Theme

/// The line between two groups of menu entries.
T.MenuSeparator {
    id: root

    implicitWidth: 60
    implicitHeight: 11
    Accessible.role: Accessible.Separator
    Accessible.name: ""

    contentItem: Item {
        Rectangle {
            x: 9
            y: 5
            width: parent.width - 18
            height: 1
            color: Theme.divider
        }
    }
}
