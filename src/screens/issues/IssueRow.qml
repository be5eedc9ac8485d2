pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Model
import Velmora.Options
import Velmora.State
import Velmora.Theme

// One issue of the list.
Item {
    id: root

    required property issue issue
    required property bool isFocused
    required property bool isChecked
    required property bool isOpen
    required property string updatedText
    required property string dueText
    required property bool isOverdue
    required property string dueTooltip
    required property string accessibleName
    required property issueListBadge badge
    required property displayProperties display
    required property int keyWidth
    // Any issue is checked: every check box shows.
    required property bool isSelecting

    signal clicked(modifiers: int)
    signal checkToggled()
    // The picker of a kind (`PropertyOptions.Kind`) is wanted at a cell.
    signal pickRequested(kind: int, cell: Item)
    signal menuRequested(x: real, y: real)
    signal dragBegun(handler: DragHandler)

    readonly property RowCell hotCell: hover.hovered ? cellAt(hover.point.position.x) : null

    function cellAt(x: real): RowCell {
        return (leading.childAt(x - leading.x, 1) ?? trailing.childAt(x - trailing.x, 1)) as RowCell;
    }

    function press(x: real, modifiers: int) {
        const cell = cellAt(x);
        if (cell)
            cell.pressed();
        else
            clicked(modifiers);
    }

    readonly property string priorityText: Pictures.priorityName(issue.priorityLevel)
    readonly property real gap: Metrics.gapMedium
    readonly property real room: width - trailing.width - leading.width - 3 * gap
    readonly property rowFit fit: RowFitting.fit(room,
        labels.visible ? labels.namesWidth + gap : 0, labels.visible ? labels.dotsWidth + gap : 0,
        due.visible ? RowFitting.dueWidth(dueText) + gap : 0, due.visible ? 26 + gap : 0)

    Accessible.role: Accessible.ListItem
    Accessible.name: root.accessibleName
    Accessible.focusable: true
    Accessible.focused: root.isFocused && root.visible
    Accessible.selectable: true
    Accessible.selected: root.isChecked
    Accessible.onPressAction: root.clicked(0)

    Rectangle {
        anchors.fill: parent
        anchors.topMargin: 1
        anchors.bottomMargin: 1
        radius: Metrics.radiusRow
        color: root.isChecked ? Theme.checkedFill
            : root.isOpen ? Theme.openFill
            : root.isFocused || hover.hovered ? Theme.hoverFill : "transparent"
    }

    Rectangle {
        visible: root.isFocused
        width: 2
        radius: 1
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.topMargin: 9
        anchors.bottomMargin: 9
        color: Theme.accent
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        id: tap
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: (point, button) => button === Qt.RightButton
            ? root.menuRequested(point.position.x, point.position.y)
            : root.press(point.position.x, tap.point.modifiers)
    }

    DragHandler {
        id: drag
        target: null
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onActiveChanged: if (active) root.dragBegun(drag)
    }

    CellHighlight {
        anchors.verticalCenter: parent.verticalCenter
        cell: root.hotCell
    }

    Row {
        id: leading
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: root.gap

        // The visible box is 14 wide, its target 22.
        Item {
            width: 14
            height: Metrics.smallButton

            RowCheckBox {
                anchors.centerIn: parent
                focusPolicy: Qt.NoFocus
                name: "Sélectionner " + root.issue.key
                checked: root.isChecked
                shown: hover.hovered || root.isSelecting
                hint: "Sélectionner (X)"
                onClicked: root.checkToggled()
            }
        }

        RowCell {
            id: priorityCell
            visible: root.display.priority
            kind: PropertyOptions.Priority
            hint: root.priorityText
            spoken: "Priorité : " + hint
            onPressed: root.pickRequested(kind, priorityCell)

            PriorityIcon {
                anchors.centerIn: parent
                level: root.issue.priorityLevel
                Accessible.ignored: true
                size: 14
            }
        }

        AppText {
            visible: root.display.key
            anchors.verticalCenter: parent.verticalCenter
            width: root.keyWidth
            role: TypeScale.Small
            tabular: true
            color: Theme.text2
            text: root.issue.key
            Accessible.ignored: true
            elide: Text.ElideRight
        }

        RowCell {
            id: statusCell
            kind: PropertyOptions.Status
            hint: root.issue.status.displayName
            spoken: "Statut : " + hint
            onPressed: root.pickRequested(kind, statusCell)

            StatusIcon {
                anchors.centerIn: parent
                status: root.issue.status
                Accessible.ignored: true
                size: 14
            }
        }

        Item {
            visible: root.display.type
            width: 14
            height: Metrics.smallButton

            TypeIcon {
                anchors.centerIn: parent
                visible: root.issue.hasType
                type: root.issue.typeOrEmpty
                Accessible.ignored: true
                size: 11
            }
        }
    }

    RowSummary {
        anchors.left: leading.right
        anchors.leftMargin: root.gap
        anchors.right: labels.left
        anchors.rightMargin: labels.visible ? root.gap : 0
        anchors.verticalCenter: parent.verticalCenter
        summary: root.issue.summary
        parentSummary: root.issue.parentSummary
    }

    RowLabels {
        id: labels
        visible: root.display.labels && root.issue.labels.length > 0
        width: visible ? implicitWidth : 0
        anchors.right: due.left
        anchors.rightMargin: due.visible ? root.gap : 0
        anchors.verticalCenter: parent.verticalCenter
        issue: root.issue
        showsNames: root.fit.showsLabelNames
    }

    DueBadge {
        id: due
        visible: root.display.dueDate && root.issue.hasDueDate
        width: visible ? implicitWidth : 0
        anchors.right: trailing.left
        anchors.rightMargin: root.gap
        anchors.verticalCenter: parent.verticalCenter
        Accessible.ignored: true
        text: root.dueText
        late: root.isOverdue
        compact: !root.fit.showsDueText

        HintTip {
            shown: hover.hovered && due.contains(due.mapFromItem(root, hover.point.position))
            text: root.dueTooltip
        }
    }

    Row {
        id: trailing
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: root.gap

        RowCell {
            id: assigneeCell
            visible: root.display.assignee
            kind: PropertyOptions.Assignee
            hint: ""
            spoken: "Assigné : " + (root.issue.hasAssignee ? root.issue.assigneeOrEmpty.name : "personne")
            onPressed: root.pickRequested(kind, assigneeCell)

            Avatar {
                anchors.centerIn: parent
                user: root.issue.assigneeOrEmpty
                Accessible.ignored: true
                hasUser: root.issue.hasAssignee
                size: 18
            }
        }

        When {
            shown: root.display.updated && root.badge.isShown

            RowActivity {
                badge: root.badge
            }
        }

        Item {
            visible: root.display.updated && !root.badge.isShown
            width: 54
            height: Metrics.smallButton

            // "à l'instant" is wider than the column, and takes of the gap before it.
            AppText {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                role: TypeScale.Small
                tabular: true
                color: Theme.text2
                text: root.updatedText
                Accessible.ignored: true
            }
        }
    }
}
