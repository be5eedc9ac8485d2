#pragma once

#include "jira/wire/UserDTO.h"
#include "jira/wire/WireMember.h"
#include "model/ActivityEvent.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>
#include <tuple>

/// The history of an issue in Jira's JSON.
struct ChangelogDTO
{
    struct History
    {
        struct Item
        {
            std::optional<QString> field;
            std::optional<QString> fieldId;
            std::optional<QString> fromString;
            std::optional<QString> toString;

            static constexpr auto wireMembers()
            {
                return std::tuple(WireMember{"field", &Item::field},
                                  WireMember{"fieldId", &Item::fieldId},
                                  WireMember{"fromString", &Item::fromString},
                                  WireMember{"toString", &Item::toString});
            }
        };

        std::optional<UserDTO> author;
        std::optional<QDateTime> created;
        std::optional<QList<Item>> items;

        static constexpr auto wireMembers()
        {
            return std::tuple(WireMember{"author", &History::author},
                              WireMember{"created", &History::created},
                              WireMember{"items", &History::items});
        }
    };

    std::optional<QList<History>> histories;

    /// The creation of the issue and the changes of status and assignee, sorted by date. Events with the same date are
    /// in the order of the entries and of their items, after the creation. An entry with a missing or invalid date is
    /// ignored.
    QList<ActivityEvent> events(const ActivityEvent &creation) const;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"histories", &ChangelogDTO::histories});
    }
};
