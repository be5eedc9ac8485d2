#pragma once

#include <QString>

#include <optional>

/// An "@" in a text and the characters between it and the caret, while they may become a mention.
struct MentionQuery
{
    /// The position of the "@".
    qsizetype start = 0;
    /// The characters after the "@" up to the caret. Empty directly after the "@".
    QString words;

    bool operator==(const MentionQuery &) const = default;
};

/// The mention that is being typed before the caret: the last "@" that is at the start of the text or follows white
/// space, so that an e-mail address is none. Nothing if the words after it have more than 30 characters, contain a line
/// break, or contain more than one blank: a first name and a surname are a query, a sentence is not.
std::optional<MentionQuery> mentionQuery(const QString &text, qsizetype caret);
