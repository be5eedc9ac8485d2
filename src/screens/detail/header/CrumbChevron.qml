import QtQuick
import Velmora.Kit
import Velmora.Theme

// The sign between two parts of the breadcrumb.
Symbol {
    id: root

    anchors.verticalCenter: parent ? parent.verticalCenter : undefined
    name: "chevron.right"
    size: 8
    weight: "bold"
    color: Theme.text2
}
