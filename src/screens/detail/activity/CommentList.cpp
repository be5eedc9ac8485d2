#include "screens/detail/activity/CommentList.h"

void CommentList::setComments(const QList<ShownComment> &comments)
{
    QList<CommentRow> rows;
    for (const auto &comment : comments)
        rows.append({comment});
    setRows(rows);
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
