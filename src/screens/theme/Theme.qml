pragma Singleton
import QtQuick
import Velmora.Model
import Velmora.Theme

/// Colours by role. The composition root writes `dark` and `accentChoice`; everything else follows.
QtObject {
    id: root

    /// True while the dark appearance is shown.
    property bool dark: false
    /// The accent that the user chose.
    property int accentChoice: Model.AccentChoice.Indigo

    // Text
    /// What is read.
    readonly property color text1: dark ? "#EDEDF2" : "#1B1B1F"
    /// What is scanned: keys, dates, counts.
    readonly property color text2: dark ? "#ACADB7" : "#565760"
    /// What is only there if looked for; never on a highlighted option.
    readonly property color text3: dark ? "#9596A1" : "#686973"
    /// Disabled controls only.
    readonly property color text4: dark ? "#5C5D66" : "#A8A9B2"

    // Planes
    /// The plane of lists, boards and issue windows.
    readonly property color content: dark ? "#141417" : "#FFFFFF"
    /// Sidebar and settings window.
    readonly property color pane: dark ? "#1B1B1F" : "#F6F6FA"
    /// The pane beside the list.
    readonly property color inspector: dark ? "#1B1B1F" : "#FCFCFE"
    /// Composer and mention list, at 82 % and 70 %.
    readonly property color window: dark ? "#26262C" : "#FFFFFF"
    /// Cards of a board and of a form.
    readonly property color card: dark ? "#202025" : "#FFFFFF"
    /// The first screen's card, over its moving colours.
    readonly property color onboardingCard: dark ? "#C71E1D28" : "#DBFCFCFF"
    /// Sheets.
    readonly property color elevated: dark ? "#26262C" : "#FFFFFF"

    // Glass, at the opacities that need no blur behind it
    /// Palette, popovers, menus, tooltips.
    readonly property color elevatedGlass: dark ? "#F728282E" : "#F7FCFCFE"
    /// The palette's glass as it looks over the scrim. Opaque: nothing of the list shines through its rows, nor is drawn.
    readonly property color paletteFill: dark ? "#26262B" : "#F7F7F9"
    /// Capsules, chips, badges, breadcrumb.
    readonly property color glass: dark ? "#EB2E2E35" : "#EBFFFFFF"
    /// Selection bar, toasts, drag preview.
    readonly property color glassStrong: dark ? "#F52A2A31" : "#F5FDFDFF"

    // Lines and light
    /// One device pixel round every pane, capsule and popover.
    readonly property color hairline: dark ? "#21EDEDF2" : "#1C1B1B1F"
    /// Between sections.
    readonly property color divider: dark ? "#17EDEDF2" : "#141B1B1F"
    /// One device pixel inside the top edge of glass.
    readonly property color edgeLight: dark ? "#12FFFFFF" : "#E6FFFFFF"
    /// The two soft glows of the sidebar.
    readonly property color paneGlow: dark ? "#0F7882F0" : "#0B5E6AD2"
    /// Behind the palette and sheets.
    readonly property color scrim: "#2E000000"
    readonly property color scrollThumb: ink(dark ? 0.26 : 0.28)

    // Fills, over whatever plane they lie on
    /// Text fields of forms.
    readonly property color field: ink(dark ? 0.06 : 0.05)
    readonly property color boardColumn: ink(0.028)
    readonly property color bubble: ink(0.035)
    /// A row under the pointer or with the keyboard's focus; the header of a group.
    readonly property color hoverFill: ink(0.04)
    readonly property color keyCapFill: ink(0.07)
    readonly property color skeletonFill: ink(0.07)
    /// The row that is open beside the list; the selected row of the sidebar.
    readonly property color openFill: ink(0.075)
    /// A small button under the pointer.
    readonly property color buttonHoverFill: ink(0.08)
    /// The option that Return would choose; a toggle that is on.
    readonly property color highlightFill: ink(0.09)
    /// The outline of label chips and due dates.
    readonly property color chipOutline: ink(0.12)
    readonly property color checkedFill: accentAt(0.14)
    readonly property color textSelection: accentAt(0.25)
    readonly property color focusRing: accentAt(0.6)

    // The accent
    /// Discs, check boxes, the focus bar, switches, symbols, outlines.
    readonly property color accent: IdentityPalette.accent(accentChoice)
    /// Under white text.
    readonly property color accentFill: IdentityPalette.accentFill(accentChoice)
    /// Links, mentions, text buttons.
    readonly property color accentText: dark ? IdentityPalette.accentTextOnDark(accentChoice)
                                             : IdentityPalette.accentTextOnLight(accentChoice)
    readonly property color textOnAccent: "#FFFFFF"
    /// A finished status: the accent, on purpose.
    readonly property color done: accent

    // Identity, the same in both appearances
    readonly property color inProgress: IdentityPalette.inProgress
    readonly property color review: IdentityPalette.review
    readonly property color urgent: IdentityPalette.urgent
    readonly property color neutral: IdentityPalette.neutral
    /// Symbols of internal notes; their text takes `noteText`.
    readonly property color internalNote: IdentityPalette.internalNote

    // Meaning: the plain name for symbols, `…Text` for words
    readonly property color orange: dark ? "#FF9F43" : "#F08A24"
    readonly property color orangeText: dark ? "#FFAA58" : "#A44E04"
    readonly property color red: dark ? "#F2555A" : "#E5484D"
    readonly property color redText: dark ? "#FF7A7D" : "#C02A2F"
    /// Under white text.
    readonly property color redFill: "#C02A2F"
    readonly property color green: dark ? "#3EC684" : "#26A064"
    readonly property color blue: dark ? "#5AA0FF" : "#2979E6"
    readonly property color purple: dark ? "#B484F5" : "#995CE6"
    readonly property color noteText: dark ? "#F5B44E" : "#8C5500"

    /// The primary colour at an opacity, 0 to 1.
    function ink(opacity: real): color {
        return Qt.rgba(text1.r, text1.g, text1.b, opacity)
    }

    /// The accent at an opacity, 0 to 1.
    function accentAt(opacity: real): color {
        return Qt.rgba(accent.r, accent.g, accent.b, opacity)
    }

    /// The colour of an issue type's family (`Model.IssueTypeKind`).
    function typeColor(kind: int): color {
        return IdentityPalette.type(kind)
    }

    /// The colour of a label's dot.
    function labelColor(name: string): color {
        return IdentityPalette.label(name)
    }
}
