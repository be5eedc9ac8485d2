import QtQuick
import Velmora.Theme

/// The gallery's window: one page of samples in one appearance.
Window {
    id: window

    required property string page
    required property bool dark

    width: 1320
    height: 1000
    visible: true
    color: Theme.content
    title: "Velmora"

    Binding {
        target: Theme
        property: "dark"
        value: window.dark
    }

    GalleryPage {
        anchors.fill: parent
        page: window.page
    }
}
