#pragma once

#include "derivation/IssueGroup.h"

#include <QSet>
#include <QtQml/qqmlregistration.h>

#include <variant>

/// The enumerations of the list's rows, for QML.
namespace IssueListEnums {
Q_NAMESPACE
QML_ELEMENT

enum class RowKind { Header, Issue };
Q_ENUM_NS(RowKind)

/// The kind of a header's icon. The person and the project may be absent.
enum class GroupKind { Status, Assignee, Priority, Project, All };
Q_ENUM_NS(GroupKind)

} // namespace IssueListEnums

/// The header of one group.
class IssueListHeader
{
    Q_GADGET
    QML_VALUE_TYPE(issueListHeader)
    Q_PROPERTY(QString groupId MEMBER groupId CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(int count MEMBER count CONSTANT FINAL)
    Q_PROPERTY(bool isCollapsed MEMBER isCollapsed CONSTANT FINAL)
    Q_PROPERTY(IssueListEnums::GroupKind kind READ groupKind CONSTANT FINAL)
    Q_PROPERTY(IssueStatus statusOrEmpty READ statusOrEmpty CONSTANT FINAL)
    Q_PROPERTY(bool hasUser READ hasUser CONSTANT FINAL)
    Q_PROPERTY(JiraUser userOrEmpty READ userOrEmpty CONSTANT FINAL)
    Q_PROPERTY(Model::PriorityLevel level READ level CONSTANT FINAL)
    Q_PROPERTY(bool hasProject READ hasProject CONSTANT FINAL)
    Q_PROPERTY(Project projectOrEmpty READ projectOrEmpty CONSTANT FINAL)
    Q_PROPERTY(QString accessibleName READ accessibleName CONSTANT FINAL)

public:
    /// The group's id, as in the set of collapsed groups.
    QString groupId;
    QString title;
    /// The issues of the group, shown or not.
    int count = 0;
    bool isCollapsed = false;
    IssueGroupKind kind;

    IssueListEnums::GroupKind groupKind() const { return IssueListEnums::GroupKind(kind.type()); }
    IssueStatus statusOrEmpty() const { return kind.asStatus().value_or(IssueStatus()); }
    bool hasUser() const { return kind.asAssignee().has_value(); }
    JiraUser userOrEmpty() const { return kind.asAssignee().value_or(JiraUser()); }
    PriorityLevel level() const { return kind.asPriority().value_or(PriorityLevel::None); }
    bool hasProject() const { return kind.asProject().has_value(); }
    Project projectOrEmpty() const { return kind.asProject().value_or(Project()); }
    /// "En cours, 3 tickets", and ", replié" for a collapsed group.
    QString accessibleName() const;

    bool operator==(const IssueListHeader &) const = default;
};

/// A row of the flat list: a group's header or an issue.
struct IssueListRow
{
    /// The issue's key, or "h:" and the group's id.
    QString key;
    std::variant<SharedIssue, Shared<IssueListHeader>> content;

    /// The issue; null for a header.
    const Issue *issue() const;
    /// The header; null for an issue.
    const IssueListHeader *header() const;

    bool operator==(const IssueListRow &) const = default;
};
Q_DECLARE_TYPEINFO(IssueListRow, Q_RELOCATABLE_TYPE);

/// The row of an issue.
IssueListRow issueRow(const SharedIssue &issue);
/// The row of a group's header, which says how many issues the group has.
IssueListRow headerRow(const IssueGroup &group, bool isCollapsed);
/// Each group's header and, unless it is collapsed, its issues.
QList<IssueListRow> issueListRows(const QList<IssueGroup> &groups, const QSet<QString> &collapsed);

/// The text of a row for screen readers: "WEB-203, La recherche globale ignore les accents, À faire, priorité Haute,
/// assigné à Noam Talvère".
QString accessibleSentence(const Issue &issue);
