import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The cells of a row as objects of their own for screen readers. The row draws them and takes the presses.
Item {
    id: root

    required property RowLine row
    required property real cellTop

    RowCell {
        x: root.row.plan.check - (width - Metrics.checkBox) / 2
        y: root.cellTop
        spoken: "Sélectionner " + root.row.issue.key
        onPressed: root.row.checkToggled()
        Accessible.role: Accessible.CheckBox
        Accessible.checkable: true
        Accessible.checked: root.row.isChecked
        Accessible.onToggleAction: pressed()
    }

    RowCell {
        visible: x >= 0
        x: root.row.plan.priority
        y: root.cellTop
        kind: Commands.PickerKind.Priority
        spoken: "Priorité : " + IconAddresses.priorityName(root.row.issue.priorityLevel)
        onPressed: root.row.pickRequested(kind, box)
    }

    RowCell {
        x: root.row.plan.status
        y: root.cellTop
        kind: Commands.PickerKind.Status
        spoken: "Statut : " + root.row.issue.status.displayName
        onPressed: root.row.pickRequested(kind, box)
    }

    RowCell {
        visible: x >= 0
        x: root.row.plan.assignee
        y: root.cellTop
        kind: Commands.PickerKind.Assignee
        spoken: "Assigné : " + (root.row.issue.hasAssignee ? root.row.issue.assigneeOrEmpty.name : "personne")
        onPressed: root.row.pickRequested(kind, box)
    }
}
