#pragma once

#include "jira/wire/UserDTO.h"
#include "jira/wire/WireMember.h"
#include "model/ADFNode.h"
#include "model/Comment.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>
#include <tuple>

/// A comment in Jira's JSON.
struct CommentDTO
{
    struct Visibility
    {
        /// "role" or "group".
        std::optional<QString> type;
        /// The name of the role or group.
        std::optional<QString> value;

        static constexpr auto wireMembers()
        {
            return std::tuple(WireMember{"type", &Visibility::type},
                              WireMember{"value", &Visibility::value});
        }
    };

    QString id;
    std::optional<UserDTO> author;
    std::optional<ADFNode> body;
    std::optional<QDateTime> created;
    /// False for a comment that only the agents of a service project can see.
    std::optional<bool> jsdPublic;
    std::optional<Visibility> visibility;
    /// The body as HTML, which refers to the attachments that the media in the body stand for.
    std::optional<QString> renderedBody;

    /// Converts to a domain record; `now` replaces a date that is missing or invalid.
    Comment model(const QDateTime &now) const;

    static constexpr auto wireMembers()
    {
        return std::tuple(
            WireMember{"id", &CommentDTO::id}, WireMember{"author", &CommentDTO::author},
            WireMember{"body", &CommentDTO::body}, WireMember{"created", &CommentDTO::created},
            WireMember{"jsdPublic", &CommentDTO::jsdPublic},
            WireMember{"visibility", &CommentDTO::visibility},
            WireMember{"renderedBody", &CommentDTO::renderedBody});
    }
};

/// The comments on an issue.
struct CommentsDTO
{
    QList<CommentDTO> comments;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"comments", &CommentsDTO::comments, MostInPage});
    }
};
