import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Theme

/// The gallery's window: one page of samples, and controls for the page, the appearance and the accent.
Window {
    id: root

    required property string page
    required property bool dark
    required property int accent
    readonly property list<string> pages: ["icons", "symbols", "states", "fields", "forms", "controls", "panels", "overlays",
        "menus", "sheets", "documents", "composers", "attachments"]
    readonly property list<string> titles: ["Icônes", "Symboles", "États", "Champs et lignes", "Formulaires", "Commandes", "Panneaux",
        "Menus et bulles", "Longs menus", "Feuille", "Documents", "Commentaire", "Pièces jointes"]

    width: 1320
    height: 1060
    visible: true
    color: Theme.content
    title: "Velmora : galerie"

    Binding {
        target: Theme
        property: "dark"
        value: root.dark
    }

    Binding {
        target: Theme
        property: "accentChoice"
        value: root.accent
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
            choices: root.titles
            current: root.pages.indexOf(root.page)
            onChosen: index => root.page = root.pages[index]
        }

        SegmentedPicker {
            name: "Apparence"
            choices: ["Clair", "Sombre"]
            current: root.dark ? 1 : 0
            onChosen: index => root.dark = index === 1
        }

        MenuPicker {
            anchors.verticalCenter: parent.verticalCenter
            name: "Couleur"
            choices: ["Indigo", "Bleu", "Violet", "Rose", "Orange", "Vert", "Graphite"]
            current: root.accent
            onChosen: index => root.accent = index
        }
    }

    Flickable {
        anchors.fill: parent
        anchors.topMargin: 64
        contentWidth: page.width
        contentHeight: page.height + 64
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        T.ScrollBar.vertical: OverlayScrollBar {}

        GalleryPage {
            id: page

            x: 32
            width: root.width - 64
            height: Math.max(implicitHeight, root.height - 128)
            page: root.page
        }
    }
}
