#include "screens/issues/KeyColumn.h"

#include "screens/theme/TypeScale.h"

#include <QFontMetricsF>
#include <QSet>

#include <cmath>

namespace {

constexpr int narrowest = 36;
constexpr int widest = 150;
constexpr int margin = 4;

} // namespace

int keyColumnWidth(const IssueList &issues, const std::function<qreal(const QString &)> &advance)
{
    if (issues.isEmpty())
        return narrowest;
    qreal width = 0;
    QSet<std::pair<QString, qsizetype>> measured;
    std::pair<QString, qsizetype> last;
    for (const auto &issue : issues) {
        // Mostly that of the issue before, which is told without a look into the set.
        if (issue->key.size() == last.second && issue->projectKey == last.first)
            continue;
        last = {issue->projectKey, issue->key.size()};
        if (measured.contains(last))
            continue;
        measured.insert(last);
        width = std::max(width, advance(issue->key));
    }
    return std::clamp(int(std::ceil(width)) + margin, narrowest, widest);
}

void KeyColumn::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->issueList()->disconnect(this);
    m_store = store;
    if (m_store)
        connect(m_store->issueList(), &IssueListModel::updated, this, &KeyColumn::measure);
    Q_EMIT storeChanged();
    measure();
}

void KeyColumn::measure()
{
    const QFontMetricsF metrics(TypeScale().font(TypeScale::Small, TypeScale::roleWeight, true));
    const int width =
        m_store ? keyColumnWidth(m_store->visibleIssues(),
                                 [&](const QString &key) { return metrics.horizontalAdvance(key); })
                : narrowest;
    if (m_width == width)
        return;
    m_width = width;
    Q_EMIT widthChanged();
}
