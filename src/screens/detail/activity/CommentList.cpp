#include "screens/detail/activity/CommentList.h"

#include <QElapsedTimer>
#include <QSet>

#include <algorithm>

namespace {

/// How many comments are added before the time is looked at, and the milliseconds that are spent at a time.
constexpr qsizetype someComments = 2;
constexpr qint64 slice = 6;

} // namespace

CommentList::CommentList(QObject *parent) : KeyedListModel(parent)
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(0);
    connect(&m_idle, &QTimer::timeout, this, &CommentList::addMore);
}

void CommentList::setComments(const QList<ShownComment> &comments)
{
    m_comments.clear();
    for (const auto &comment : comments)
        m_comments.append({comment});
    QSet<QStringView> present;
    for (const auto &row : rows())
        present.insert(row.key());
    qsizetype count = 0;
    for (qsizetype fresh = 0; count < m_comments.size(); ++count) {
        if (!present.contains(m_comments.at(count).key()) && ++fresh > firstStep)
            break;
    }
    showUpTo(count);
}

void CommentList::showUpTo(qsizetype count)
{
    update(m_comments.first(std::min(count, m_comments.size())));
    if (isComplete())
        m_idle.stop();
    else
        m_idle.start();
}

void CommentList::addMore()
{
    QElapsedTimer spent;
    spent.start();
    do
        showUpTo(rows().size() + someComments);
    while (!isComplete() && spent.elapsed() < slice);
}

QVariant CommentList::data(const QModelIndex &index, int role) const
{
    Q_ASSERT(checkIndex(index, CheckIndexOption::IndexIsValid));
    const ShownComment &comment = *rows()[index.row()].comment;
    switch (role) {
    case CommentRole:
        return QVariant::fromValue(comment);
    case Qt::DisplayRole:
        return comment.sentence;
    }
    return {};
}

QHash<int, QByteArray> CommentList::roleNames() const
{
    return {{CommentRole, "comment"}};
}
