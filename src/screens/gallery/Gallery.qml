import QtQuick
import Velmora.Kit
import Velmora.Theme

/// The gallery's window: a page of samples, and what to look at them by.
Window {
    id: window

    required property string page
    required property bool dark
    required property int accent
    readonly property list<string> pages: ["icons", "symbols", "states", "panels", "controls"]

    width: 1320
    height: 1060
    visible: true
    color: Theme.content
    title: "Velmora"

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

    Row {
        x: 32
        y: 14
        spacing: 16

        SegmentedPicker {
            name: "Page"
            choices: window.pages
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

    GalleryPage {
        anchors.fill: parent
        anchors.margins: 32
        anchors.topMargin: 64
        page: window.page
    }
}
