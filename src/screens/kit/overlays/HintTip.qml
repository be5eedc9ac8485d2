import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The hint of its parent item. It is created on first use. It is shown after a delay, or at once if another hint was
/// shown just before. It ends with the window of its parent.
Loader {
    id: root

    property bool shown: false
    property string text
    /// The time for which the pointer must rest before the hint is shown, in milliseconds.
    property int delay: HintWarmth.warm ? 0 : Motion.tooltipDelay

    active: shown && text.length > 0 && Window.window !== null
    sourceComponent: HintBubble {}
    onLoaded: (item as HintBubble).showAt(parent, text, delay)
}
