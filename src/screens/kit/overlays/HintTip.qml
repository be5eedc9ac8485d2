import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The hint of the item it is declared in. It is made when first wanted, shows after a moment, and at once when another
/// hint was just shown.
Loader {
    id: root

    property bool shown: false
    property string text
    /// How long the pointer rests before it shows, in milliseconds.
    property int delay: HintWarmth.warm ? 0 : Motion.tooltipDelay

    active: shown && text.length > 0
    sourceComponent: HintBubble {}
    onLoaded: (item as HintBubble).showAt(parent, text, delay)
}
