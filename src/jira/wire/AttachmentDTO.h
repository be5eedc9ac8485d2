#pragma once

#include "jira/wire/UserDTO.h"
#include "jira/wire/WireMember.h"
#include "model/Attachment.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <tuple>

/// An attachment in Jira's JSON.
struct AttachmentDTO
{
    QString id;
    QString filename;
    std::optional<UserDTO> author;
    std::optional<QDateTime> created;
    std::optional<qint64> size;
    std::optional<QString> mimeType;
    /// The addresses of the content and of a preview image.
    std::optional<QString> content;
    std::optional<QString> thumbnail;

    /// Converts to a domain record; `now` replaces a creation date that is missing or invalid.
    Attachment model(const QDateTime &now) const;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"id", &AttachmentDTO::id},
                          WireMember{"filename", &AttachmentDTO::filename},
                          WireMember{"author", &AttachmentDTO::author},
                          WireMember{"created", &AttachmentDTO::created},
                          WireMember{"size", &AttachmentDTO::size},
                          WireMember{"mimeType", &AttachmentDTO::mimeType},
                          WireMember{"content", &AttachmentDTO::content},
                          WireMember{"thumbnail", &AttachmentDTO::thumbnail});
    }
};
