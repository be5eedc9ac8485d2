import QtQuick
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The search field of the list. In a narrow toolbar it is shorter. In an even narrower one it is a symbol that expands
// to a field while it is used.
Item {
    id: root

    required property AppStore store
    // The width of the toolbar.
    required property real room

    readonly property bool isFolded: room < root.leastRoom && !field.activeFocus && store.filterText === ""
    // The expanded field covers the title.
    readonly property bool coversTitle: room < root.leastRoom && !isFolded
    // The widths of the toolbar below which the field is short, and a symbol.
    readonly property int narrowRoom: 892
    readonly property int leastRoom: 500
    readonly property int shortWidth: 120
    readonly property int fullWidth: 190

    // The focus goes back to the list. The text is kept.
    signal finished()

    function open() {
        field.forceActiveFocus(Qt.ShortcutFocusReason)
    }

    implicitWidth: isFolded ? Metrics.capsuleHeight : room < root.narrowRoom ? root.shortWidth : root.fullWidth
    implicitHeight: Metrics.capsuleHeight

    SearchField {
        id: field
        anchors.fill: parent
        opacity: root.isFolded ? 0 : 1
        name: "Filtrer"
        placeholderText: "Filtrer"
        text: root.store.filterText
        onTextChanged: root.store.filterText = text
        Keys.onEscapePressed: root.finished()
        Keys.onReturnPressed: root.finished()
        Keys.onEnterPressed: root.finished()
    }

    IconButton {
        visible: root.isFolded
        look: IconButton.Glass
        name: "Filtrer"
        symbol: "magnifyingglass"
        focusPolicy: Qt.NoFocus
        onClicked: root.open()
    }
}
