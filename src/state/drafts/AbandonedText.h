#pragma once

#include "model/JiraUser.h"
#include "state/edits/CommentAudience.h"

#include <QList>
#include <QString>

/// A text that was typed and neither sent nor saved.
struct AbandonedText
{
    /// The title of a new issue; empty for other texts.
    QString title;
    /// Markdown.
    QString body;
    /// The users who were picked for mentions in a comment.
    QList<JiraUser> mentions;
    /// Who was to read a comment.
    CommentAudience audience = CommentAudience::Everyone;

    bool hasWords() const { return !title.trimmed().isEmpty() || !body.trimmed().isEmpty(); }
    bool operator==(const AbandonedText &) const = default;
};
