import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A check box with a label after it. Pressing either toggles it. A long text wraps if the width is set.
CheckableItem {
    id: root

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(Metrics.smallButton, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: 4
    rightPadding: 6
    topPadding: 2
    bottomPadding: 2
    corner: Metrics.radiusSquare

    contentItem: CheckBoxLabel {
        text: root.text
        checked: root.checked
        hovered: root.lit
        pressed: root.down
    }
}
