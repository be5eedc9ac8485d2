pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Options
import Velmora.Theme

/// A searchable list of options: a search field, which has the focus, above the matching rows. The list receives key
/// presses before the field does. `done` asks the host to close it.
FocusScope {
    id: root

    required property OptionSource source
    required property string placeholder
    readonly property int highest: 340

    signal done()

    function begin() {
        field.forceActiveFocus(Qt.PopupFocusReason)
        list.findPointer(root)
    }

    /// Scrolls to the highlighted row. The first and the last row scroll to the very end of the list.
    function follow() {
        rows.positionViewAtIndex(list.highlighted, ListView.Contain)
        if (list.highlighted === 0)
            rows.positionViewAtBeginning()
    }

    implicitWidth: 290
    implicitHeight: field.height + (list.isEmpty ? nothing.height : rows.height)
    focus: true
    Component.onCompleted: begin()

    OptionList {
        id: list

        source: root.source
        onDone: root.done()
        onHighlightedChanged: root.follow()
    }

    KeyMonitorModifier {
        handler: list
    }

    InputField {
        id: field

        width: parent.width
        height: Metrics.optionSearchHeight
        leftPadding: 14
        rightPadding: 14
        focus: true
        background: null
        name: root.placeholder
        placeholderText: root.placeholder
        text: list.query
        onTextEdited: list.query = text
        spoken: list.spoken
    }

    Hairline {
        anchors.bottom: field.bottom
        width: parent.width
        color: Theme.divider
    }

    ListView {
        id: rows

        anchors.top: field.bottom
        x: 6
        width: parent.width - 12
        height: Math.min(root.highest, contentHeight + topMargin + bottomMargin)
        topMargin: 6
        bottomMargin: 6
        visible: !list.isEmpty
        clip: contentHeight + topMargin + bottomMargin > height
        model: list.rows
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        // Rows that the view creates in advance would survive the filter that removes them.
        cacheBuffer: 0
        currentIndex: -1
        Accessible.role: Accessible.List
        Accessible.name: root.placeholder

        delegate: OptionRow {
            width: rows.width
            isHighlighted: index === list.highlighted
            onPointed: where => list.point(index, where)
            onPicked: list.activate(index)
        }

        T.ScrollBar.vertical: OverlayScrollBar {
            thickness: 5
        }
    }

    AppText {
        id: nothing

        anchors.top: field.bottom
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        visible: list.isEmpty
        topPadding: 18 + leading
        bottomPadding: 18 + leading
        role: TypeScale.Small
        color: Theme.text2
        text: "Aucun résultat"
    }
}
