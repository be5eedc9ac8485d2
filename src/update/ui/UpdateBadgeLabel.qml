import QtQuick
import Velmora.Kit
import Velmora.Theme
import Velmora.UpdateScreens

// The symbol and the two lines of the badge.
Item {
    id: root

    required property updateLabel label
    required property bool isReady
    readonly property int inset: 12
    readonly property int symbolSize: 16

    Symbol {
        id: symbol
        x: root.inset
        anchors.verticalCenter: parent.verticalCenter
        visible: root.label.symbol !== ""
        name: root.label.symbol
        size: root.symbolSize
        color: root.isReady ? Theme.accentText : Theme.accent
    }

    Spinner {
        anchors.centerIn: symbol
        visible: !symbol.visible
        size: root.symbolSize
        Accessible.ignored: true
    }

    Column {
        anchors.left: symbol.right
        anchors.leftMargin: Metrics.gapMedium
        anchors.right: parent.right
        anchors.rightMargin: root.inset
        anchors.verticalCenter: parent.verticalCenter

        AppText {
            width: parent.width
            role: TypeScale.Small
            weight: Font.DemiBold
            text: root.label.title
            Accessible.ignored: true
        }

        AppText {
            width: parent.width
            role: TypeScale.Caption
            color: root.isReady ? Theme.text1 : Theme.text2
            text: root.label.subtitle
            Accessible.ignored: true
        }
    }
}
