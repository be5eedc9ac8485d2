#include "screens/issues/BoardDrops.h"

QStringList movedKeys(const QStringList &dropped, const QSet<QString> &checked)
{
    QStringList all(checked.begin(), checked.end());
    all.sort();
    QStringList moved;
    for (const auto &key : dropped) {
        if (checked.contains(key))
            moved += all;
        else
            moved += key;
    }
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

void BoardDrops::drop(const QString &text, const IssueStatus &status)
{
    if (m_store)
        m_store->setStatus(status, movedKeys(droppedKeys(text), m_store->checked()));
}
