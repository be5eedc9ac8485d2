#include "state/edits/DocumentComposing.h"

#include "richtext/ADFMarkdown.h"
#include "richtext/ADFMentions.h"
#include "richtext/ADFQueries.h"

ADFNode composedDocument(const QString &markdown, const QList<JiraUser> &users)
{
    return ADF::linkingMentions(ADFMarkdown::document(markdown), users);
}

std::optional<ADFNode> composedDescription(const QString &markdown,
                                           const std::optional<ADFNode> &present,
                                           const QList<JiraUser> &candidates)
{
    if (markdown.trimmed().isEmpty())
        return std::nullopt;
    const QList<JiraUser> mentioned = present ? ADF::mentionedUsers(*present) : QList<JiraUser>();
    return composedDocument(markdown, mentioned + candidates);
}
