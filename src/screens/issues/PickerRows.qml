pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Velmora.Issues
import Velmora.Kit
import Velmora.Options
import Velmora.Theme

// The rows of a picker, or the words that none matches.
Item {
    id: root

    required property Picker picker

    readonly property int highest: 420

    implicitHeight: picker.isEmpty ? 18 + 18 + 18 : Math.min(highest, list.count * Metrics.optionRowHeight + 4 + 8)

    ListView {
        id: list
        anchors.fill: parent
        anchors.leftMargin: Metrics.gap
        anchors.rightMargin: Metrics.gap
        topMargin: Metrics.gapTiny
        bottomMargin: Metrics.gap
        clip: true
        model: root.picker.rows
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        currentIndex: root.picker.highlighted
        highlightMoveDuration: 0

        Accessible.role: Accessible.List
        Accessible.name: root.picker.title

        delegate: OptionRow {
            width: ListView.view.width
            isHighlighted: index === root.picker.highlighted
            onPointed: root.picker.highlighted = index
            onPicked: root.picker.activate(index)
        }

        T.ScrollBar.vertical: OverlayScrollBar {
            thickness: 5
        }
    }

    AppText {
        visible: root.picker.isEmpty
        anchors.centerIn: parent
        role: TypeScale.Small
        color: Theme.text2
        text: "Aucun résultat"
    }
}
