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

} // namespace

IssueListRow issueRow(const SharedIssue &issue)
{
    return {issue->key, issue};
}

IssueListRow headerRow(const IssueGroup &group, bool isCollapsed)
{
    IssueListHeader header;
    header.groupId = group.id;
    header.title = oneLine(group.title);
    header.count = int(group.issues.size());
    header.isCollapsed = isCollapsed;
    header.kind = group.kind;
    return {"h:"_L1 + group.id, Shared<IssueListHeader>(std::move(header))};
}

QString IssueListHeader::accessibleName() const
{
    const auto unit = count < 2 ? u" ticket"_s : u" tickets"_s;
    return title + ", "_L1 + QString::number(count) + unit +
           (isCollapsed ? u", replié"_s : QString());
}

const Issue *IssueListRow::issue() const
{
    const auto *issue = std::get_if<SharedIssue>(&content);
    return issue ? &**issue : nullptr;
}

const IssueListHeader *IssueListRow::header() const
{
    const auto *header = std::get_if<Shared<IssueListHeader>>(&content);
    return header ? &**header : nullptr;
}

QList<IssueListRow> issueListRows(const QList<IssueGroup> &groups, const QSet<QString> &collapsed)
{
    QList<IssueListRow> rows;
    qsizetype count = groups.size();
    for (const auto &group : groups)
        count += group.issues.size();
    rows.reserve(count);
    for (const auto &group : groups) {
        const bool isCollapsed = collapsed.contains(group.id);
        rows.append(headerRow(group, isCollapsed));
        if (isCollapsed)
            continue;
        for (const auto &issue : group.issues)
            rows.append(issueRow(issue));
    }
    return rows;
}

QString accessibleSentence(const Issue &issue)
{
    const QStringList words{issue.key, oneLine(issue.summary), issue.status.displayName(),
                            priorityWords(issue), assigneeWords(issue)};
    return words.join(", "_L1);
}
