import QtQuick
import QtQuick.Templates as T
import Velmora.Theme
import Velmora.Kit

/// The bubble of a hint, below the middle of the item it belongs to.
T.ToolTip {
    id: tip

    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: parent ? parent.height + 6 : 0
    margins: 6
    leftPadding: 10
    rightPadding: 10
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Metrics.tooltipHeight
    delay: HintWarmth.warm ? 0 : Motion.tooltipDelay
    onAboutToHide: HintWarmth.restart()

    function showAt(owner: Item, words: string) {
        parent = owner
        text = words
        open()
    }

    contentItem: AppText {
        text: tip.text
        role: TypeScale.Badge
        weight: Font.Normal
        Accessible.role: Accessible.ToolTip
    }

    background: GlassPanel {
        radius: Metrics.radiusRow
        color: Theme.elevatedGlass
        shadow: "bar"
    }
}
