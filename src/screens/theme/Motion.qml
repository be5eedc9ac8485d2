pragma Singleton
import QtQuick

/// How long things move. Animate with `easing` one of `Springs` and the duration that names it. With `reduced`, moves end
/// at once and fades stay as short fades; the composition root writes it.
QtObject {
    id: root

    /// The desktop asks for less motion.
    property bool reduced: false
    /// Shapes may be scaled. The renderer without graphics hardware draws round shapes in parts, and a scaled one shows
    /// its seams; the composition root writes it.
    property bool scales: true
    readonly property bool shrinks: scales && !reduced

    // Durations in milliseconds
    /// Changes of state, group folding, filter bar, board moves, optimistic edits; with `Springs.even`.
    readonly property int stateDuration: reduced ? 0 : 570
    /// The palette; with `Springs.even`.
    readonly property int paletteDuration: reduced ? 0 : 250
    /// Scrolling to the focused row, a targeted column, the mention list; with `Springs.even`.
    readonly property int scrollDuration: reduced ? 0 : 205
    /// A card under the pointer, the drop overlay; with `Springs.even`.
    readonly property int cardDuration: reduced ? 0 : 170
    /// The selection bar coming in; with `Springs.soft`.
    readonly property int selectionBarDuration: reduced ? 0 : 395
    /// A toast coming in, with `Springs.soft`, and going out, with `Springs.firm`.
    readonly property int toastInDuration: reduced ? 0 : 565
    readonly property int toastOutDuration: reduced ? 0 : 610
    /// A pressed glass button shrinking to `pressScale`.
    readonly property int pressDuration: reduced ? 0 : 100
    readonly property real pressScale: shrinks ? 0.97 : 1
    /// A popover coming in from `popoverScale`.
    readonly property int popoverDuration: 140
    readonly property real popoverScale: shrinks ? 0.97 : 1
    readonly property real paletteScale: shrinks ? 0.98 : 1
    /// Hover fills leaving (they appear at once), and every fade that stands for a move.
    readonly property int fadeDuration: 120

    // Scroll bars and tooltips
    readonly property int scrollBarLinger: 800
    readonly property int scrollBarFade: 200
    readonly property int tooltipDelay: 600
    /// One direction of the skeleton's pulse, down to `skeletonLow`.
    readonly property int skeletonDuration: 900
    readonly property real skeletonLow: 0.55
}
