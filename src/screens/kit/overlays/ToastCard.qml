import QtQuick
import Velmora.Kit
import Velmora.Theme

/// One toast: a symbol and a message on glass, at most 460 wide; a longer message wraps. Pressing it emits `clicked`.
FocusableItem {
    id: toast

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
        message: toast.message
        symbol: toast.symbol
        isError: toast.isError
    }

    background: GlassPanel {
        radius: toast.corner
        color: Theme.glassStrong
        shadow: "bar"

        HoverFill {
            radius: toast.corner
            shown: toast.lit
            fill: toast.down ? Theme.openFill : Theme.hoverFill
        }
    }
}
