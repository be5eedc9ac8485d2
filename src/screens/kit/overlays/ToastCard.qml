import QtQuick
import Velmora.Kit
import Velmora.Theme

/// One toast: a symbol and a message on glass, at most 460 wide. A longer message wraps. A press emits `clicked`. For
/// screen readers it is a notification, or an alert if it is an error. (It contains a `FocusableItem` and is none,
/// because screen readers always see that as a button.)
FocusScope {
    id: root

    required property string message
    required property string symbol
    required property bool isError
    property alias lit: button.lit
    property alias ringed: button.ringed
    property alias down: button.down

    signal clicked()

    implicitWidth: button.implicitWidth
    implicitHeight: button.implicitHeight
    Accessible.role: isError ? Accessible.AlertMessage : Accessible.Notification
    Accessible.name: message
    Accessible.focusable: true
    Accessible.focused: button.activeFocus
    Accessible.onPressAction: if (enabled) clicked()

    FocusableItem {
        id: button

        anchors.fill: parent
        focus: true
        leftPadding: 16
        rightPadding: 16
        topPadding: 10
        bottomPadding: 10
        implicitWidth: Math.min(Metrics.toastMaxWidth, implicitContentWidth + leftPadding + rightPadding)
        corner: Math.min(Metrics.radiusToast, height / 2)
        Accessible.ignored: true
        onClicked: root.clicked()

        contentItem: ToastLabel {
            message: root.message
            symbol: root.symbol
            isError: root.isError
        }

        background: GlassPanel {
            radius: button.corner
            color: Theme.glassStrong
            shadow: "bar"

            HoverFill {
                radius: button.corner
                shown: button.lit
                fill: button.down ? Theme.openFill : Theme.hoverFill
            }
        }
    }
}
