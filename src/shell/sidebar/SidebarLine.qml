pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.State
import Velmora.Theme

// One line of the sidebar's list: the title of a section, a selectable row, or the text shown in place of projects.
PressArea {
    id: root

    required property int kind
    required property string text
    required property string symbol
    required property project project
    required property bool isSelectable
    required property bool isSelected
    required property string badgeText
    required property string accessibleName
    // The row has the keyboard focus, and the focus is visible.
    property bool isFocused: false
    readonly property bool isSection: kind === SidebarEnums.Section

    signal chosen()

    acceptedButtons: kind === SidebarEnums.Project ? Qt.RightButton : Qt.NoButton
    implicitHeight: isSection ? 35 : Metrics.sidebarRowHeight

    Item {
        anchors.fill: parent
        visible: root.isSelectable
        Accessible.role: Accessible.ListItem
        Accessible.name: root.accessibleName
        Accessible.selectable: true
        Accessible.selected: root.isSelected
        Accessible.focusable: true
        Accessible.focused: root.isFocused
        Accessible.onPressAction: root.chosen()

        SidebarRow {
            anchors.fill: parent
            focusPolicy: Qt.NoFocus
            text: root.text
            symbol: root.symbol
            count: root.badgeText
            selected: root.isSelected
            nested: root.kind === SidebarEnums.View
            Accessible.ignored: true
            onClicked: root.chosen()
            // With this handler the second press of a double click is no click. The first one may have put another row
            // under the pointer.
            onDoubleClicked: {}

            When {
                shown: root.kind === SidebarEnums.Project

                ProjectBadge {
                    x: 9
                    y: (root.height - height) / 2
                    project: root.project
                    Accessible.ignored: true
                }
            }

            // Inside the row, because the list clips what is drawn beside it.
            FocusRing {
                shown: root.isFocused
                corner: Metrics.radiusRow - 4
                anchors.margins: 0
            }
        }
    }

    AppText {
        visible: root.isSection
        x: Metrics.gapMedium
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 5
        role: TypeScale.Caption
        weight: Font.DemiBold
        color: Theme.text3
        text: root.text
        Accessible.role: Accessible.Heading
        Accessible.name: root.accessibleName
    }

    AppText {
        visible: root.kind === SidebarEnums.Placeholder
        x: Metrics.gapMedium
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.text2
        text: root.text
    }
}
