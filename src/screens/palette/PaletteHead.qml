import QtQuick
import Velmora.Kit
import Velmora.Palette
import Velmora.Theme

// The issues that the palette applies to and, in a picker, the property that it changes.
Item {
    id: root

    required property CommandPalette commandPalette

    implicitHeight: 34

    Row {
        x: 18
        y: 14
        height: 20
        spacing: Metrics.gapSmall

        KeyCapsules {
            commandPalette: root.commandPalette
        }

        Symbol {
            visible: root.commandPalette.isPicker
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.right"
            size: 9
            weight: "bold"
            color: Theme.text2
        }

        AppText {
            visible: root.commandPalette.isPicker
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Small
            weight: Font.Medium
            text: root.commandPalette.title
        }
    }
}
