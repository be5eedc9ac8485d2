pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The picker over the window, while the store asks for one.
FocusScope {
    id: root

    required property AppStore store

    readonly property bool shown: picker.isOpen

    visible: opacity > 0
    opacity: shown ? 1 : 0

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.paletteDuration
            easing: Springs.firm
        }
    }

    Picker {
        id: picker
        store: root.store
    }

    PickerKeys {
        window: root.Window.window
        picker: picker
        field: field
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.scrim
    }

    // The scrim keeps the pointer from what lies below.
    MouseArea {
        anchors.fill: parent
        enabled: root.shown
        hoverEnabled: true
        onWheel: event => event.accepted = true
        onClicked: picker.close()
    }

    GlassPanel {
        id: panel
        anchors.horizontalCenter: parent.horizontalCenter
        y: 112
        width: 640
        height: footer.y + footer.height
        radius: Metrics.radiusPalette
        shadow: "palette"
        color: Theme.elevatedGlass
        scale: root.shown ? 1 : Motion.paletteScale

        Accessible.role: Accessible.Dialog
        Accessible.name: picker.title

        Behavior on scale {
            NumberAnimation {
                duration: Motion.paletteDuration
                easing: Springs.even
            }
        }

        MouseArea {
            anchors.fill: parent
        }

        PickerHead {
            id: head
            width: parent.width
            picker: picker
        }

        Symbol {
            x: 18
            anchors.verticalCenter: field.verticalCenter
            name: "arrow.turn.down.right"
            size: 15
            color: Theme.text2
        }

        PickerField {
            id: field
            anchors.top: head.bottom
            x: 38
            width: parent.width - x - 18
            height: 52
            focus: true
            picker: picker
        }

        Rectangle {
            anchors.bottom: rows.top
            width: parent.width
            height: 1
            color: Theme.divider
        }

        PickerRows {
            id: rows
            anchors.top: field.bottom
            width: parent.width
            height: implicitHeight
            enabled: root.shown
            picker: picker
        }

        Rectangle {
            anchors.bottom: footer.top
            width: parent.width
            height: 1
            color: Theme.divider
        }

        PickerFooter {
            id: footer
            anchors.top: rows.bottom
            width: parent.width
            isDemo: root.store.isDemo
        }
    }
}
