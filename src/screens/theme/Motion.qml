pragma Singleton
import QtQuick

/// The durations of animations. Use one of `Springs` as `easing`, together with the duration that names it. While
/// `reduced` is set, movements end at once and only short fades remain. The composition root sets it.
QtObject {
    id: root

    /// The desktop requests reduced motion.
    property bool reduced: false
    /// Shapes may be scaled. The software renderer draws rounded shapes in parts, and scaling makes the seams visible.
    /// The composition root sets it.
    property bool scales: true
    readonly property bool shrinks: scales && !reduced

    // Durations in milliseconds
    /// For changes of state, group folding, the filter bar, board moves and optimistic edits, with `Springs.even`.
    readonly property int stateDuration: reduced ? 0 : 570
    /// For the palette, with `Springs.even`.
    readonly property int paletteDuration: reduced ? 0 : 250
    /// For scrolling to the focused row, a targeted column and the mention list, with `Springs.even`.
    readonly property int scrollDuration: reduced ? 0 : 205
    /// For a card under the pointer and the drop overlay, with `Springs.even`.
    readonly property int cardDuration: reduced ? 0 : 170
    /// For the selection bar when it appears, with `Springs.soft`.
    readonly property int selectionBarDuration: reduced ? 0 : 395
    /// For a toast that appears, with `Springs.soft`, and one that disappears, with `Springs.firm`.
    readonly property int toastInDuration: reduced ? 0 : 565
    readonly property int toastOutDuration: reduced ? 0 : 610
    /// For a pressed glass button, which shrinks to `pressScale`.
    readonly property int pressDuration: reduced ? 0 : 100
    readonly property real pressScale: shrinks ? 0.97 : 1
    /// For a popover that appears, growing from `popoverScale`.
    readonly property int popoverDuration: 140
    readonly property real popoverScale: shrinks ? 0.97 : 1
    readonly property real paletteScale: shrinks ? 0.98 : 1
    /// For hover fills that disappear (they appear at once), and for every fade that replaces a movement.
    readonly property int fadeDuration: 120

    // Scroll bars, menus and tooltips
    readonly property int scrollBarLinger: 800
    readonly property int scrollBarFade: 200
    readonly property int tooltipDelay: 600
    /// The speed at which a menu scrolls while the pointer rests on its scroll sign, in logical pixels per second.
    readonly property int menuScrollSpeed: 400
    /// One direction of the skeleton's pulse, down to `skeletonLow`.
    readonly property int skeletonDuration: 900
    readonly property real skeletonLow: 0.55
}
