pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Create
import Velmora.Kit
import Velmora.Options
import Velmora.Theme

// The properties of the new issue, each as a chip that opens the list of its values.
Item {
    id: root

    required property NewIssueForm form

    implicitHeight: flow.height + 18
    height: implicitHeight

    FlowLayout {
        id: flow

        x: Metrics.pageMargin
        width: parent.width - 2 * x
        height: implicitHeight
        spacing: Metrics.gap
        lineSpacing: Metrics.gap

        OptionChip {
            title: root.form.typeTitle
            accessibleName: "Type : " + title
            placeholder: "Type de ticket…"
            enabled: !root.form.isSubmitting
            source: NewIssueOptions {
                form: root.form
                kind: NewIssueOptions.Type
            }
            leading: Item {
                implicitWidth: 13
                implicitHeight: 13

                TypeIcon {
                    anchors.centerIn: parent
                    visible: root.form.hasType
                    type: root.form.type
                    size: 11
                    Accessible.ignored: true
                }

                Symbol {
                    anchors.centerIn: parent
                    visible: !root.form.hasType
                    name: "square.dashed"
                    size: 11.5
                }
            }
        }

        OptionChip {
            title: root.form.priorityTitle
            accessibleName: "Priorité : " + title
            placeholder: "Priorité…"
            enabled: !root.form.isSubmitting
            source: NewIssueOptions {
                form: root.form
                kind: NewIssueOptions.Priority
            }
            leading: PriorityIcon {
                level: root.form.priorityLevel
                size: 13
                Accessible.ignored: true
            }
        }

        OptionChip {
            title: root.form.assigneeTitle
            accessibleName: "Assigné : " + title
            placeholder: "Assigner à…"
            enabled: !root.form.isSubmitting
            source: NewIssueOptions {
                form: root.form
                kind: NewIssueOptions.Assignee
            }
            leading: Avatar {
                user: root.form.assignee
                hasUser: root.form.hasAssignee
                size: 16
                Accessible.ignored: true
            }
        }

        // Many labels are elided instead of exceeding the line.
        Item {
            implicitWidth: Math.min(labels.implicitWidth, flow.width)
            implicitHeight: labels.implicitHeight

            OptionChip {
                id: labels

                width: parent.width
                title: root.form.labelsTitle
                accessibleName: "Étiquettes : " + title
                placeholder: "Étiquettes…"
                enabled: !root.form.isSubmitting
                source: NewIssueOptions {
                    form: root.form
                    kind: NewIssueOptions.Labels
                }
                leading: Symbol {
                    name: "tag"
                    size: 11.5
                    color: Theme.text2
                }
            }
        }
    }
}
