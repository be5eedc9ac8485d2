#include "screens/detail/subissues/SubIssueProgress.h"

#include "screens/theme/KeyColumn.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void SubIssueProgress::setRows(const QList<SubIssue> &rows)
{
    if (m_rows == rows)
        return;
    m_rows = rows;
    Q_EMIT rowsChanged();
}

int SubIssueProgress::done() const
{
    return int(std::ranges::count_if(m_rows, [](const SubIssue &row) {
        return row.hasStatus && isClosed(row.status.category());
    }));
}

QString SubIssueProgress::title() const
{
    return QString::number(done()) + u'/' + QString::number(m_rows.size());
}

QString SubIssueProgress::spokenTitle() const
{
    return u"Sous-tickets, %1 sur %2"_s.arg(done()).arg(m_rows.size());
}

qreal SubIssueProgress::share() const
{
    return m_rows.isEmpty() ? 0 : qreal(done()) / qreal(m_rows.size());
}

int SubIssueProgress::keyWidth() const
{
    QStringList keys;
    for (const auto &row : m_rows)
        keys.append(row.key);
    return keyColumnWidth(keys);
}
