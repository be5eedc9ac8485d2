import QtQuick
import Velmora.Documents
import Velmora.UpdateScreens

// Release notes as a document, within a view that scrolls. Without a view, what has the focus is scrolled into sight by
// the page around it.
ADFContentView {
    id: root

    required property UpdateScreens screens

    height: implicitHeight
    name: "Notes de version"
    onLinkActivated: address => root.screens.openLink(address)
}
