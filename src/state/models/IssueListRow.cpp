#include "state/models/IssueListRow.h"

#include "model/OneLineText.h"

using namespace Qt::StringLiterals;

static_assert(int(IssueListEnums::GroupKind::Status) == int(IssueGroupKind::Type::Status) &&
              int(IssueListEnums::GroupKind::All) == int(IssueGroupKind::Type::All));

namespace {

QString priorityWords(const Issue &issue)
{
    return issue.priority ? u"priorité "_s + issue.priority->displayName() : u"aucune priorité"_s;
}

QString assigneeWords(const Issue &issue)
{
    return issue.assignee ? u"assigné à "_s + oneLine(issue.assignee->name) : u"non assigné"_s;
}

QString labelWords(const QStringList &labels)
{
    QStringList shown;
    for (const auto &label : labels)
        shown += oneLine(label);
    if (shown.size() == 1)
        return u"étiquette "_s + shown.front();
    const QString last = shown.takeLast();
    return u"étiquettes "_s + shown.join(", "_L1) + u" et "_s + last;
}

/// The header of a group, which says how many issues the group has.
IssueListHeader headerOf(const IssueGroup &group, bool isCollapsed)
{
    IssueListHeader header;
    header.groupId = group.id;
    header.rowKey = "h:"_L1 + group.id;
    header.title = oneLine(group.title);
    header.count = int(group.issues.size());
    header.isCollapsed = isCollapsed;
    header.kind = group.kind;
    return header;
}

void appendRows(IssueListRows &list, const IssueList &issues)
{
    list.issues.append(issues);
    for (const auto &issue : issues)
        list.rows.append(IssueListRow(&*issue));
}

} // namespace

QString IssueListHeader::accessibleName() const
{
    const auto unit = count < 2 ? u" ticket"_s : u" tickets"_s;
    return title + ", "_L1 + QString::number(count) + unit +
           (isCollapsed ? u", replié"_s : QString());
}

bool operator==(const IssueListRow &a, const IssueListRow &b)
{
    if (a.m_issue && b.m_issue)
        return a.m_issue == b.m_issue || *a.m_issue == *b.m_issue;
    if (a.m_header && b.m_header)
        return a.m_header == b.m_header || *a.m_header == *b.m_header;
    return false;
}

IssueListRows issueListRows(const QList<IssueGroup> &groups, const QSet<QString> &collapsed)
{
    IssueListRows list;
    qsizetype count = groups.size();
    for (const auto &group : groups)
        count += group.issues.size();
    list.rows.reserve(count);
    for (const auto &group : groups) {
        const bool isCollapsed = collapsed.contains(group.id);
        list.headers.append(headerOf(group, isCollapsed));
        list.rows.append(IssueListRow(&*list.headers.constLast()));
        if (!isCollapsed)
            appendRows(list, group.issues);
    }
    return list;
}

IssueListRows issueListRows(const IssueList &issues)
{
    IssueListRows list;
    list.rows.reserve(issues.size());
    appendRows(list, issues);
    return list;
}

QString accessibleSentence(const Issue &issue)
{
    QStringList words{issue.key, oneLine(issue.summary), issue.status.displayName(),
                      priorityWords(issue), assigneeWords(issue)};
    if (!issue.labels.isEmpty())
        words.append(labelWords(issue.labels));
    return words.join(", "_L1);
}
