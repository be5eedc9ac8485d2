#include "screens/detail/subissues/SubIssue.h"

#include "model/OneLineText.h"

QList<SubIssue> subIssues(const QList<IssueRef> &issues)
{
    QList<SubIssue> rows;
    for (const auto &issue : issues) {
        SubIssue row;
        row.key = issue.key;
        row.summary = oneLine(issue.summary);
        row.hasStatus = issue.status.has_value();
        row.status = issue.status.value_or(IssueStatus());
        rows.append(row);
    }
    return rows;
}
