import QtQuick

/// Chooses the page by its name: icons, controls or symbols.
Item {
    id: root

    required property string page

    Loader {
        anchors.fill: parent
        anchors.margins: 32
        sourceComponent: root.page === "icons" ? icons : root.page === "controls" ? controls : symbols
    }

    Component {
        id: icons

        IconSamples {}
    }

    Component {
        id: controls

        ControlSamples {}
    }

    Component {
        id: symbols

        SymbolSamples {}
    }
}
