import QtQuick

/// A part of a screen in a QML file of its own, which is loaded when the part is first shown, so that unused parts do
/// not slow down the start. Handle `wanted` by calling `setSource` with the properties of the part.
Loader {
    id: root

    required property bool shown

    signal wanted()

    function follow() {
        if (root.shown && root.status === Loader.Null)
            root.wanted();
        else if (!root.shown)
            root.source = "";
    }

    onShownChanged: follow()
    Component.onCompleted: follow()
}
