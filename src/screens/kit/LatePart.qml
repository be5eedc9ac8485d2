import QtQuick

/// A part of a screen in a document of its own, which is read when the part is first shown: what nobody has opened costs
/// no start. Answer `wanted` with `setSource` and what the part needs.
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
