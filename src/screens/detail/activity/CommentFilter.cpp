#include "screens/detail/activity/CommentFilter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

bool isNote(const Comment &comment)
{
    return comment.isInternal || comment.restrictedTo.has_value();
}

bool isShown(const Comment &comment, CommentFilter filter)
{
    return filter == CommentFilter::All || isNote(comment) == (filter == CommentFilter::Notes);
}

CommentCounts CommentCounts::of(const QList<Comment> &comments)
{
    return {comments.size(), std::ranges::count_if(comments, isNote)};
}

bool offersFilter(const CommentCounts &counts, ProjectKind project)
{
    return counts.notes > 0 || project == ProjectKind::ServiceDesk;
}

QStringList filterTitles(const CommentCounts &counts, ProjectKind project)
{
    const bool isDesk = project == ProjectKind::ServiceDesk;
    return {u"Tout "_s + QString::number(counts.all),
            (isDesk ? u"Réponses "_s : u"Commentaires "_s) +
                QString::number(counts.all - counts.notes),
            u"Notes internes "_s + QString::number(counts.notes)};
}

QString commentCountText(qsizetype count)
{
    return count == 1 ? u"1 commentaire"_s : QString::number(count) + u" commentaires"_s;
}

QString emptyText(CommentFilter filter)
{
    switch (filter) {
    case CommentFilter::All:
        return {};
    case CommentFilter::Replies:
        return u"Aucun commentaire public sur ce ticket."_s;
    case CommentFilter::Notes:
        return u"Aucune note interne sur ce ticket."_s;
    }
    return {};
}
