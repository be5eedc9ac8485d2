#pragma once

#include "jira/wire/StatusDTO.h"
#include "jira/wire/WireMember.h"

#include <QList>
#include <QString>

#include <tuple>

/// The transitions of an issue in Jira's JSON.
struct TransitionsDTO
{
    struct Transition
    {
        QString id;
        QString name;
        StatusDTO to;

        WorkflowTransition model() const { return {.id = id, .name = name, .to = to.model()}; }

        static constexpr auto wireMembers()
        {
            return std::tuple(WireMember{"id", &Transition::id},
                              WireMember{"name", &Transition::name},
                              WireMember{"to", &Transition::to});
        }
    };

    QList<Transition> transitions;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"transitions", &TransitionsDTO::transitions});
    }
};
