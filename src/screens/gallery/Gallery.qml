import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Theme

/// The gallery's window: a page of samples, and what to look at them by.
Window {
    id: window

    required property string page
    required property bool dark
    required property int accent
    readonly property list<string> pages: ["icons", "symbols", "states", "fields", "controls", "panels", "overlays", "sheets"]
    readonly property list<string> titles: ["Icônes", "Symboles", "États", "Champs et lignes", "Commandes", "Panneaux",
        "Menus et bulles", "Feuille"]

    width: 1320
    height: 1060
    visible: true
    color: Theme.content
    title: "Velmora : galerie"

    Binding {
        target: Theme
        property: "dark"
        value: window.dark
    }

    Binding {
        target: Theme
        property: "accentChoice"
        value: window.accent
    }

    Binding {
        target: Motion
        property: "scales"
        value: tools.GraphicsInfo.api !== GraphicsInfo.Software
    }

    Row {
        id: tools

        x: 32
        y: 14
        spacing: 16

        SegmentedPicker {
            name: "Page"
            choices: window.titles
            current: window.pages.indexOf(window.page)
            onChosen: index => window.page = window.pages[index]
        }

        SegmentedPicker {
            name: "Apparence"
            choices: ["Clair", "Sombre"]
            current: window.dark ? 1 : 0
            onChosen: index => window.dark = index === 1
        }

        MenuPicker {
            anchors.verticalCenter: parent.verticalCenter
            name: "Couleur"
            choices: ["Indigo", "Bleu", "Violet", "Rose", "Orange", "Vert", "Graphite"]
            current: window.accent
            onChosen: index => window.accent = index
        }
    }

    Flickable {
        anchors.fill: parent
        anchors.topMargin: 64
        contentWidth: page.width
        contentHeight: page.height + 64
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        GalleryPage {
            id: page

            x: 32
            width: window.width - 64
            height: Math.max(implicitHeight, window.height - 128)
            page: window.page
        }

        T.ScrollBar.vertical: OverlayScrollBar {}
    }
}
