#include "model/dates/DueDates.h"

bool isOverdue(const Issue &issue, const QDate &today)
{
    return issue.dueDate && *issue.dueDate < today && !isClosed(issue.status.category());
}
