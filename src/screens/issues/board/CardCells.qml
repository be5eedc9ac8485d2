import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State

// The cells of a card as objects of their own for screen readers. The card draws them and takes the presses.
Item {
    id: root

    required property CardFace card

    RowCell {
        x: root.card.assigneeCell.x
        y: root.card.assigneeCell.y
        kind: Commands.PickerKind.Assignee
        spoken: "Assigné : " + (root.card.issue.hasAssignee ? root.card.issue.assigneeOrEmpty.name : "personne")
        onPressed: root.card.pickRequested(kind, root.card.assigneeCell)
    }

    RowCell {
        x: root.card.priorityCell.x
        y: root.card.priorityCell.y
        height: root.card.priorityCell.height
        kind: Commands.PickerKind.Priority
        spoken: "Priorité : " + IconAddresses.priorityName(root.card.issue.priorityLevel)
        onPressed: root.card.pickRequested(kind, root.card.priorityCell)
    }
}
