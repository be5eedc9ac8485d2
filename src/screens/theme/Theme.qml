pragma Singleton
import QtQuick
import Velmora.Model
import Velmora.Theme

/// Colours by role. The composition root sets `dark` and `accentChoice`, and all colours follow from them.
QtObject {
    id: root

    /// True while the dark appearance is shown.
    property bool dark: false
    /// The accent that the user chose.
    property int accentChoice: Model.AccentChoice.Indigo

    // Text
    /// Text that is read.
    readonly property color text1: dark ? "#EDEDF2" : "#1B1B1F"
    /// Text that is scanned: keys, dates, counts.
    readonly property color text2: dark ? "#ACADB7" : "#565760"
    /// Text that is seen only when looked for. Never used on a highlighted option.
    readonly property color text3: dark ? "#9596A1" : "#686973"
    /// For disabled controls only.
    readonly property color text4: dark ? "#5C5D66" : "#A8A9B2"

    // Planes
    /// The background of lists, boards and issue windows.
    readonly property color content: dark ? "#141417" : "#FFFFFF"
    /// The background of the sidebar and the settings window.
    readonly property color pane: dark ? "#1B1B1F" : "#F6F6FA"
    /// The background of the inspector.
    readonly property color inspector: dark ? "#1B1B1F" : "#FCFCFE"
    /// The background of the composer and of the mention list, at 82 % and 70 % opacity.
    readonly property color window: dark ? "#26262C" : "#FFFFFF"
    /// For the cards of a board and of a form.
    readonly property color card: dark ? "#202025" : "#FFFFFF"
    /// For the card of the sign-in screen, above its moving colours.
    readonly property color onboardingCard: dark ? "#C71E1D28" : "#DBFCFCFF"
    /// Sheets.
    readonly property color elevated: dark ? "#26262C" : "#FFFFFF"

    // Glass, with opacities that need no blur behind it
    /// For the palette, popovers, menus and tooltips.
    readonly property color elevatedGlass: dark ? "#F728282E" : "#F7FCFCFE"
    /// The colour that the palette's glass has above the scrim. It is opaque, so the list below neither shows through
    /// nor is drawn.
    readonly property color paletteFill: dark ? "#26262B" : "#F7F7F9"
    /// For capsules, chips, badges and the breadcrumb.
    readonly property color glass: dark ? "#EB2E2E35" : "#EBFFFFFF"
    /// For the selection bar, toasts and the drag preview.
    readonly property color glassStrong: dark ? "#F52A2A31" : "#F5FDFDFF"

    // Lines and light
    /// An outline of one device pixel around every pane, capsule and popover.
    readonly property color hairline: dark ? "#21EDEDF2" : "#1C1B1B1F"
    /// Lines between sections.
    readonly property color divider: dark ? "#17EDEDF2" : "#141B1B1F"
    /// A line of one device pixel inside the top edge of glass.
    readonly property color edgeLight: dark ? "#12FFFFFF" : "#E6FFFFFF"
    /// The two soft glows of the sidebar.
    readonly property color paneGlow: dark ? "#0F7882F0" : "#0B5E6AD2"
    /// The scrim behind the palette and sheets.
    readonly property color scrim: "#2E000000"
    readonly property color scrollThumb: ink(dark ? 0.26 : 0.28)

    // Fills, drawn above any plane
    /// For text fields of forms.
    readonly property color field: ink(dark ? 0.06 : 0.05)
    readonly property color boardColumn: ink(0.028)
    readonly property color bubble: ink(0.035)
    /// For a row under the pointer or with the keyboard focus, and for group headers.
    readonly property color hoverFill: ink(0.04)
    readonly property color keyCapFill: ink(0.07)
    readonly property color skeletonFill: ink(0.07)
    /// For the row that is open in the inspector, and for the selected row of the sidebar.
    readonly property color openFill: ink(0.075)
    /// For a small button under the pointer.
    readonly property color buttonHoverFill: ink(0.08)
    /// For the option that Return would choose, and for a toggle that is on.
    readonly property color highlightFill: ink(0.09)
    /// The outline of label chips and due dates.
    readonly property color chipOutline: ink(0.12)
    readonly property color checkedFill: accentAt(0.14)
    readonly property color textSelection: accentAt(0.25)
    readonly property color focusRing: accentAt(0.6)

    // The accent
    /// For discs, check boxes, the focus bar, switches, symbols and outlines.
    readonly property color accent: IdentityPalette.accent(accentChoice)
    /// A background for white text.
    readonly property color accentFill: IdentityPalette.accentFill(accentChoice)
    /// For links, mentions and text buttons.
    readonly property color accentText: dark ? IdentityPalette.accentTextOnDark(accentChoice)
                                             : IdentityPalette.accentTextOnLight(accentChoice)
    readonly property color textOnAccent: "#FFFFFF"
    /// For a finished status: deliberately the accent.
    readonly property color done: accent

    // Identity, the same in both appearances
    readonly property color inProgress: IdentityPalette.inProgress
    readonly property color review: IdentityPalette.review
    readonly property color urgent: IdentityPalette.urgent
    readonly property color neutral: IdentityPalette.neutral
    /// For the symbols of internal notes. Their text takes `noteText`.
    readonly property color internalNote: IdentityPalette.internalNote

    // Meaning: the plain name is for symbols, `…Text` for text
    readonly property color orange: dark ? "#FF9F43" : "#F08A24"
    readonly property color orangeText: dark ? "#FFAA58" : "#A44E04"
    readonly property color red: dark ? "#F2555A" : "#E5484D"
    readonly property color redText: dark ? "#FF7A7D" : "#C02A2F"
    /// A background for white text.
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

    /// The colour of internal notes at an opacity, 0 to 1.
    function noteAt(opacity: real): color {
        return Qt.rgba(internalNote.r, internalNote.g, internalNote.b, opacity)
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
