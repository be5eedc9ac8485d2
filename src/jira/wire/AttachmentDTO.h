#pragma once

#include "jira/wire/UserDTO.h"
#include "jira/wire/WireMember.h"
#include "model/Attachment.h"

#include <QString>

#include <optional>
#include <tuple>

/// An attachment, as Jira sends one.
struct AttachmentDTO
{
    QString id;
    QString filename;
    std::optional<UserDTO> author;
    std::optional<QString> created;
    std::optional<qint64> size;
    std::optional<QString> mimeType;
    /// The addresses of the content and of a preview.
    std::optional<QString> content;
    std::optional<QString> thumbnail;

    /// `now` stands for a date of creation that is missing or unreadable.
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
