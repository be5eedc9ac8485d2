#include "screens/issues/board/BoardDrops.h"

#include "commands/SelectionRules.h"

#include <cmath>

QStringList movedKeys(const QStringList &dropped, const QSet<QString> &checked)
{
    Selection selection;
    selection.checked = checked;
    QStringList moved;
    for (const auto &key : dropped)
        moved += contextKeys(selection, key);
    return moved;
}

QStringList droppedKeys(const QString &text)
{
    QStringList keys;
    for (const auto &line : text.split(u'\n', Qt::SkipEmptyParts)) {
        if (const QString key = line.trimmed(); !key.isEmpty())
            keys += key;
    }
    return keys;
}

int columnAt(double x, int width, int gap, int count)
{
    const int column = int(std::floor((x + gap / 2.0) / (width + gap)));
    return column >= 0 && column < count ? column : -1;
}

int BoardDrops::columnAt(double x, int width, int gap) const
{
    return m_store ? ::columnAt(x, width, gap, m_store->board()->rowCount()) : -1;
}

bool BoardDrops::dropOn(const QString &text, int column)
{
    const auto place = m_store ? m_store->board()->index(column, 0) : QModelIndex();
    if (!place.isValid())
        return false;
    const auto status = place.data(BoardModel::StatusRole).value<IssueStatus>();
    m_store->setStatus(status, movedKeys(droppedKeys(text), m_store->checked()));
    return true;
}
