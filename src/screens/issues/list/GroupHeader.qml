import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The header of a group. A click anywhere on it folds or unfolds the group.
PressArea {
    id: root

    required property issueListHeader header
    // The header is drawn above rows that scroll below it.
    property bool isPinned: false

    // The centres of the columns of check boxes and of priorities, and the title begins where the keys begin.
    readonly property real checkCentre: Metrics.rowPadding + Metrics.checkBox / 2
    readonly property real iconCentre: Metrics.rowPadding + Metrics.checkBox + Metrics.rowGap + Metrics.rowPicker / 2
    readonly property int chevronBox: 12
    // The width of the count and of the button behind the title.
    readonly property int titleClearance: 60
    // The group whose state the chevron shows.
    property string shownGroup

    signal toggled()
    signal newIssueRequested()

    // The chevron turns only when its group is folded or unfolded, not when the header starts to show another group.
    function turnChevron() {
        turning.enabled = shownGroup === header.groupId;
        shownGroup = header.groupId;
        chevron.rotation = header.isCollapsed ? 0 : 90;
    }

    acceptedButtons: Qt.LeftButton
    onClicked: root.toggled()
    onHeaderChanged: turnChevron()
    Component.onCompleted: turnChevron()

    Accessible.role: Accessible.Button
    Accessible.name: root.header.accessibleName
    Accessible.ignored: root.isPinned
    Accessible.onPressAction: root.toggled()

    Rectangle {
        visible: root.isPinned
        anchors.fill: parent
        color: Theme.content
    }

    Rectangle {
        anchors.fill: parent
        radius: Metrics.radiusRow
        color: Theme.hoverFill
    }

    // Above the fill that a header always has.
    HoverFill {
        radius: Metrics.radiusRow
        shown: root.isHovered
        fill: root.isPressed ? Theme.openFill : Theme.hoverFill
    }

    Item {
        x: root.checkCentre - width / 2
        width: root.chevronBox
        height: Metrics.checkBox
        anchors.verticalCenter: parent.verticalCenter

        Symbol {
            id: chevron
            anchors.centerIn: parent
            name: "chevron.right"
            size: 9
            weight: "bold"
            color: Theme.text2

            Behavior on rotation {
                id: turning

                NumberAnimation {
                    duration: Motion.stateDuration
                    easing: Springs.even
                }
            }
        }
    }

    GroupIcon {
        // Aligned with the centre of the rows' priority column.
        x: root.iconCentre - width / 2
        anchors.verticalCenter: parent.verticalCenter
        header: root.header
    }

    AppText {
        id: title
        x: root.iconCentre + Metrics.rowPicker / 2 + Metrics.rowGap
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, root.width - x - root.titleClearance)
        role: TypeScale.Body
        weight: Font.Medium
        text: root.header.title
        Accessible.ignored: true
        elide: Text.ElideRight
    }

    AppText {
        anchors.left: title.right
        anchors.leftMargin: Metrics.gap
        anchors.verticalCenter: parent.verticalCenter
        role: TypeScale.Small
        tabular: true
        color: Theme.text2
        text: root.header.count
        Accessible.ignored: true
    }

    IconButton {
        anchors.right: parent.right
        anchors.rightMargin: Metrics.rowPadding
        anchors.verticalCenter: parent.verticalCenter
        focusPolicy: Qt.NoFocus
        name: "Nouveau ticket"
        symbol: "plus"
        symbolWeight: "semibold"
        onClicked: root.newIssueRequested()
    }
}
