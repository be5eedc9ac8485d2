import QtQuick

/// Chooses the page by its name: icons, symbols, states, fields, forms, controls, panels, overlays, menus, sheets,
/// documents, composers or attachments.
Loader {
    id: root

    required property string page

    source: Qt.resolvedUrl(page.charAt(0).toUpperCase() + page.slice(1, -1) + "Samples.qml")
}
