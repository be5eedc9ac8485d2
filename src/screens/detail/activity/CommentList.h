#pragma once

#include "model/Shared.h"
#include "screens/detail/activity/ShownComment.h"
#include "state/models/SteppedListModel.h"

#include <QtQml/qqmlregistration.h>

/// A comment in a list. Rows that hold the same object are equal without a comparison of their contents.
struct CommentRow
{
    Shared<ShownComment> comment;

    const QString &key() const { return comment->key; }
    bool operator==(const CommentRow &) const = default;
};

/// The comments that are shown, oldest first. The bubbles of many comments are created in steps.
class CommentList : public SteppedListModel<CommentRow>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to ActivityContent")

public:
    enum Role { CommentRole = Qt::UserRole };
    Q_ENUM(Role)

    /// The number of comments that are added at once, which fills most windows.
    static constexpr qsizetype firstStep = 12;

    explicit CommentList(QObject *parent = nullptr) : SteppedListModel(firstStep, parent) {}

    /// Replaces the comments.
    void setComments(const QList<ShownComment> &comments);

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
};
