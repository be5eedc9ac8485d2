#pragma once

#include "derivation/IssueGroup.h"

#include <QSet>
#include <QtQml/qqmlregistration.h>

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
    /// "h:" and the group's id.
    QString rowKey;
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

/// A row of the flat list: a group's header or an issue. It refers to the record or the header and does not own it, so
/// that a long list is built and compared without reading its records.
class IssueListRow
{
public:
    explicit IssueListRow(const Issue *issue) : m_issue(issue) {}
    explicit IssueListRow(const IssueListHeader *header) : m_header(header) {}

    /// The issue's key, or "h:" and the group's id.
    const QString &key() const { return m_issue ? m_issue->key : m_header->rowKey; }
    /// The issue; null for a header.
    const Issue *issue() const { return m_issue; }
    /// The header; null for an issue.
    const IssueListHeader *header() const { return m_header; }

    /// Compares the contents, except when both refer to the same object.
    friend bool operator==(const IssueListRow &a, const IssueListRow &b);

private:
    const Issue *m_issue = nullptr;
    const IssueListHeader *m_header = nullptr;
};

/// The rows of a list with the records and headers that they refer to.
struct IssueListRows
{
    QList<IssueListRow> rows;
    QList<IssueList> issues;
    QList<Shared<IssueListHeader>> headers;
};

/// Each group's header and, unless it is collapsed, its issues.
IssueListRows issueListRows(const QList<IssueGroup> &groups, const QSet<QString> &collapsed);
/// Only issues, without any header.
IssueListRows issueListRows(const IssueList &issues);

/// The text of a row for screen readers: "WEB-203, La recherche globale ignore les accents, À faire, priorité Haute,
/// assigné à Noam Talvère".
QString accessibleSentence(const Issue &issue);
