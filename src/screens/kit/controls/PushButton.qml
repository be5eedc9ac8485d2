import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A button with a label, preceded by a symbol if one is set. Plain: text in the accent colour. Glass: a floating
/// capsule. Prominent: filled with the accent, at most one per screen. `destructive` makes it red, for actions that
/// cannot be undone. `large` makes it 40 high instead of 30.
FocusableItem {
    id: root

    enum Look { Plain, Glass, Prominent }

    property int look: PushButton.Glass
    property bool large: false
    property bool destructive: false
    property string symbol
    readonly property bool plain: look === PushButton.Plain
    readonly property bool prominent: look === PushButton.Prominent
    readonly property color ink: !enabled ? Theme.text4 : prominent ? Theme.textOnAccent
                               : destructive ? Theme.redText : plain ? Theme.accentText : Theme.text1

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: large ? Metrics.largeButtonHeight : plain ? Metrics.filterChipHeight : Metrics.buttonHeight
    leftPadding: plain ? 8 : 14
    rightPadding: leftPadding
    corner: height / 2
    scale: down && !plain ? Motion.pressScale : 1

    contentItem: PushButtonLabel {
        text: root.text
        symbol: root.symbol
        weight: root.prominent || root.large ? Font.DemiBold : Font.Medium
        ink: root.ink
    }

    background: ButtonSurface {
        corner: root.corner
        floating: root.look === PushButton.Glass
        prominent: root.prominent
        destructive: root.destructive
        hovered: root.lit
        pressed: root.down
    }

    Behavior on scale {
        NumberAnimation {
            duration: Motion.pressDuration
        }
    }
}
