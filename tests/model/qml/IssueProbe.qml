import QtQml
import Velmora.Model

QtObject {
    required property issue issue
    required property project project
    required property activityPeriod period
    required property displayProperties columns

    readonly property string key: issue.key
    readonly property jiraUser assignee: issue.assigneeOrEmpty
    readonly property issueStatus status: issue.status
    readonly property issueType type: issue.typeOrEmpty
    readonly property string statusName: status.displayName
    readonly property string initials: assignee.initials
    readonly property bool isHigh: issue.priorityOrEmpty.level === Model.PriorityLevel.High
    readonly property bool isInProgress: status.category === Model.StatusCategory.InProgress
    readonly property bool isBug: type.kind === Model.IssueTypeKind.Bug
    readonly property bool isMonth: period.range === Model.ActivityRange.Month
    readonly property string projectName: project.name
    readonly property bool showsType: columns.type
}
