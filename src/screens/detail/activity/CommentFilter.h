#pragma once

#include "model/Comment.h"

#include <QList>
#include <QStringList>

/// Which comments of an issue are shown, in the order in which they are offered.
enum class CommentFilter { All, Replies, Notes };

/// True for a comment that not every reader of the issue can see: an internal note, or one that is restricted to a group.
bool isNote(const Comment &comment);

/// Replies and notes together are all comments.
bool isShown(const Comment &comment, CommentFilter filter);

/// How many comments an issue has.
struct CommentCounts
{
    qsizetype all = 0;
    qsizetype notes = 0;

    static CommentCounts of(const QList<Comment> &comments);
    bool operator==(const CommentCounts &) const = default;
};

/// Whether the project of the issue is a service project, in which customers read the comments that are no notes.
enum class ProjectKind { Ordinary, ServiceDesk };

/// The comments can be filtered if there are notes or could be.
bool offersFilter(const CommentCounts &counts, ProjectKind project);

/// The titles of the filters, with their counts.
QStringList filterTitles(const CommentCounts &counts, ProjectKind project);

/// "1 commentaire", "12 commentaires".
QString commentCountText(qsizetype count);

/// What is said if a filter shows no comment. Empty for all comments, where the creation of the issue is shown.
QString emptyText(CommentFilter filter);
