#include "state/models/IssueListBadge.h"

QString IssueListBadge::symbol() const
{
    const auto *symbol = icon<ActivityBadge::Symbol>();
    return symbol ? symbol->name : QString();
}
