pragma Singleton
import QtQuick

/// Lengths in logical pixels: radii, spacing and the heights of controls.
QtObject {
    id: root

    // Radii
    readonly property int radiusCheckBox: 4
    readonly property int radiusKeyCap: 5
    /// For small icon buttons and the workspace square.
    readonly property int radiusSquare: 6
    /// For list rows, group headers, option rows, fields and tooltips.
    readonly property int radiusRow: 8
    readonly property int radiusPanel: 10
    readonly property int radiusCard: 11
    /// For menus, bubbles, form cards and tiles.
    readonly property int radiusBubble: 12
    /// For popovers and board columns.
    readonly property int radiusPopover: 14
    /// For the sidebar, the inspector and the breadcrumb.
    readonly property int radiusPane: 18
    readonly property int radiusToast: 20
    /// For the composer and for sheets.
    readonly property int radiusSheet: 22
    readonly property int radiusPalette: 24
    readonly property int radiusOnboarding: 32

    // Spacing
    readonly property int gapTiny: 4
    readonly property int gapSmall: 6
    /// Between controls.
    readonly property int gap: 8
    readonly property int gapMedium: 10
    readonly property int gapLarge: 14
    /// Between the sections of a page.
    readonly property int gapSection: 18
    readonly property int pageMargin: 24

    // Heights of controls
    readonly property int toolbarHeight: 56
    /// The distance of the centres of title, capsules and workspace row from the top edge.
    readonly property int toolbarCentre: 28
    /// Toolbar capsules, round buttons, search fields.
    readonly property int capsuleHeight: 32
    /// A cell inside a capsule, 28 high.
    readonly property int capsuleCellWidth: 34
    readonly property int groupHeaderHeight: 36
    readonly property int groupHeaderCompactHeight: 30
    readonly property int rowHeight: 38
    readonly property int rowCompactHeight: 31
    readonly property int smallButton: 22
    readonly property int sidebarRowHeight: 30
    readonly property int optionRowHeight: 32
    readonly property int optionSearchHeight: 38
    readonly property int menuRowHeight: 26
    readonly property int propertyChipHeight: 28
    readonly property int buttonHeight: 30
    readonly property int largeButtonHeight: 40
    readonly property int filterChipHeight: 26
    readonly property int fieldHeight: 28
    readonly property int chipHeight: 19
    readonly property int keyCapHeight: 18
    readonly property int toastMaxWidth: 460
    readonly property int tooltipHeight: 26

    // The palette
    readonly property int paletteWidth: 640
    readonly property int paletteTop: 112
    readonly property int paletteFieldHeight: 52
    /// The title of a section, above its first row.
    readonly property int paletteTitleHeight: 29
    /// The maximum height of all rows together. Further rows are reached by scrolling.
    readonly property int paletteMaxHeight: 420

    // The main window
    readonly property int paneMargin: 8
    readonly property int sidebarMinWidth: 210
    readonly property int sidebarWidth: 240
    readonly property int sidebarMaxWidth: 320
    readonly property int inspectorMinWidth: 380
    readonly property int inspectorWidth: 500
    readonly property int inspectorMaxWidth: 780
    /// The distance of toasts from the window's lower edge, normally and above the selection bar.
    readonly property int toastBottom: 24
    readonly property int toastBottomAboveBar: 84
    /// Space below the last row, so that it can be scrolled clear of the selection bar: the height of the bar, its
    /// distance from the edge, and a gap.
    readonly property int selectionBarRoom: 84
    readonly property int scrollThumbWidth: 6
    readonly property int scrollFade: 16
}
