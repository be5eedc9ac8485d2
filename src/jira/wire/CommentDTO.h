#pragma once

#include "jira/wire/UserDTO.h"
#include "jira/wire/WireMember.h"
#include "model/ADFNode.h"
#include "model/Comment.h"

#include <QList>
#include <QString>

#include <optional>
#include <tuple>

/// A comment, as Jira sends one.
struct CommentDTO
{
    struct Visibility
    {
        /// "role" or "group".
        std::optional<QString> type;
        /// The name of that role or group.
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
    std::optional<QString> created;
    /// False on a note of a service project that only its agents see.
    std::optional<bool> jsdPublic;
    std::optional<Visibility> visibility;
    /// The body as HTML, which names the attachments that the body's media stand for.
    std::optional<QString> renderedBody;

    /// `now` stands for a date that is missing or unreadable.
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

/// The comments of an issue.
struct CommentsDTO
{
    QList<CommentDTO> comments;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"comments", &CommentsDTO::comments});
    }
};
