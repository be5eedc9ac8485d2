#pragma once

#include "screens/detail/activity/CommentFilter.h"

#include <QString>

/// Who can read a comment, as its tag says it.
struct CommentReaders
{
    enum class Kind {
        /// Everybody who can read the issue. There is no tag.
        Everybody,
        /// The customer too.
        Customer,
        /// The agents of a service project only.
        Agents,
        /// The members of a group or of a role only.
        Group,
    };

    Kind kind = Kind::Everybody;
    /// The text of the tag and its hint; empty without a tag.
    QString text;
    QString hint;
    /// The end of the sentence that a screen reader says of the comment; empty without a tag.
    QString spoken;

    /// An internal note stays one even if it is restricted to a group too. The name of the group has its invisible
    /// characters made visible.
    static CommentReaders of(const Comment &comment, ProjectKind project);
    bool operator==(const CommentReaders &) const = default;
};
