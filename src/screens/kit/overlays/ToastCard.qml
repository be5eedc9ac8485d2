import QtQuick
import Velmora.Kit
import Velmora.Theme

/// One toast: a symbol and a message on glass, at most 460 wide. A longer message wraps. A press emits `clicked`.
FocusableItem {
    id: root

    required property string message
    required property string symbol
    required property bool isError

    leftPadding: 16
    rightPadding: 16
    topPadding: 10
    bottomPadding: 10
    implicitWidth: Math.min(Metrics.toastMaxWidth, implicitContentWidth + leftPadding + rightPadding)
    corner: Math.min(Metrics.radiusToast, height / 2)
    accessibleName: message

    contentItem: ToastLabel {
        message: root.message
        symbol: root.symbol
        isError: root.isError
    }

    background: GlassPanel {
        radius: root.corner
        color: Theme.glassStrong
        shadow: "bar"

        HoverFill {
            radius: root.corner
            shown: root.lit
            fill: root.down ? Theme.openFill : Theme.hoverFill
        }
    }
}
