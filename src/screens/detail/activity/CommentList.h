#pragma once

#include "model/Shared.h"
#include "screens/detail/activity/ShownComment.h"
#include "state/models/KeyedListModel.h"

#include <QTimer>
#include <QtQml/qqmlregistration.h>

/// A comment in a list. Rows that hold the same object are equal without a comparison of their contents.
struct CommentRow
{
    Shared<ShownComment> comment;

    const QString &key() const { return comment->key; }
    bool operator==(const CommentRow &) const = default;
};

/// The comments that are shown, oldest first. Creating a bubble takes one or two milliseconds, so the bubbles of many
/// comments are created in steps: the model contains the first comments at once, and the others follow while nothing
/// else happens.
class CommentList : public KeyedListModel<CommentRow>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to ActivityContent")

public:
    enum Role { CommentRole = Qt::UserRole };
    Q_ENUM(Role)

    /// The number of comments that are added at once, which fills most windows.
    static constexpr qsizetype firstStep = 12;

    explicit CommentList(QObject *parent = nullptr);

    /// Replaces the comments. Up to the first one that has to wait, the model contains them when this returns.
    void setComments(const QList<ShownComment> &comments);
    /// The model contains all comments.
    bool isComplete() const { return rows().size() == m_comments.size(); }

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void addMore();
    void showUpTo(qsizetype count);

    QList<CommentRow> m_comments;
    QTimer m_idle;
};
