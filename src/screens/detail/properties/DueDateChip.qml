pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Theme

// The due date of an issue, as a chip that opens a calendar.
GlassChip {
    id: root

    required property OpenIssue issue

    title: issue.dueTitle
    accessibleName: (issue.issue.hasDueDate ? "Échéance : " + title : title) + (issue.isOverdue ? ", en retard" : "")
    leading: Symbol {
        name: "calendar"
        size: 12
        color: root.issue.isOverdue ? Theme.red : Theme.text2
    }

    When {
        shown: root.isPresented

        DueDatePicker {
            width: root.popoverWidth
            day: root.issue.dueDay
            today: root.issue.today
            onChosen: day => {
                root.issue.setDueDay(day);
                root.dismiss();
            }
        }
    }
}
