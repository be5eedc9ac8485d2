import QtQuick
import Velmora.Kit
import Velmora.Theme

// The square with the site's initial, the site's name, and a chevron that indicates a menu.
Item {
    id: root

    required property string initial
    required property string name

    implicitWidth: title.x + title.implicitWidth + Metrics.gap + chevron.width
    implicitHeight: 22

    Rectangle {
        // Whole device pixels, because the software renderer draws ragged rounded corners that end between two pixels.
        width: Math.round(22 * Screen.devicePixelRatio) / Screen.devicePixelRatio
        height: width
        radius: Metrics.radiusSquare
        color: Theme.accent

        AppText {
            anchors.centerIn: parent
            role: TypeScale.Caption
            weight: Font.Bold
            color: Theme.textOnAccent
            text: root.initial
            Accessible.ignored: true
        }
    }

    AppText {
        id: title
        x: 30
        width: Math.min(implicitWidth, root.width - x - Metrics.gap - chevron.width)
        anchors.verticalCenter: parent.verticalCenter
        weight: Font.DemiBold
        text: root.name
        Accessible.ignored: true
    }

    Symbol {
        id: chevron
        anchors.left: title.right
        anchors.leftMargin: Metrics.gap
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.down"
        size: 9
        weight: "bold"
        color: Theme.text2
    }
}
