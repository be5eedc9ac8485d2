#include "screens/detail/activity/CommentReaders.h"

#include "model/text/VisibleText.h"

using namespace Qt::StringLiterals;

CommentReaders CommentReaders::of(const Comment &comment, ProjectKind project)
{
    if (comment.isInternal)
        return {Kind::Agents, u"Note interne"_s,
                u"Visible uniquement par l'équipe, jamais par le client"_s, u"note interne"_s};
    if (comment.restrictedTo) {
        const QString group = visibleText(*comment.restrictedTo);
        const QString readers = u"isible uniquement par « "_s + group + u" »"_s;
        return {Kind::Group, u"Restreint · "_s + group, u'V' + readers, u'v' + readers};
    }
    if (project == ProjectKind::ServiceDesk)
        return {Kind::Customer, u"Visible par le client"_s, u"Réponse partagée avec le demandeur"_s,
                u"visible par le client"_s};
    return {};
}
