import QtQuick
import QtQuick.Templates as T
import Velmora.Theme
import Velmora.Kit

/// The bubble of a hint, centred below its parent item.
T.ToolTip {
    id: root

    function showAt(owner: Item, words: string, wait: int) {
        parent = owner
        text = words
        delay = wait
        open()
    }

    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: parent ? parent.height + 6 : 0
    margins: 6
    leftPadding: 9
    rightPadding: 9
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Metrics.tooltipHeight
    onAboutToHide: HintWarmth.restart()

    contentItem: AppText {
        text: root.text
        role: TypeScale.Badge
        weight: Font.Normal
        verticalAlignment: Text.AlignVCenter
        Accessible.role: Accessible.ToolTip
    }

    background: GlassPanel {
        radius: Metrics.radiusRow
        color: Theme.elevatedGlass
        shadow: "bar"
    }
}
