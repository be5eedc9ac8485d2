#pragma once

#include "jira/wire/WireMember.h"
#include "model/IssuePriority.h"

#include <QList>
#include <QString>

#include <tuple>

/// A priority in Jira's JSON.
struct PriorityDTO
{
    QString id;
    QString name;

    IssuePriority model() const { return {id, name}; }

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"id", &PriorityDTO::id},
                          WireMember{"name", &PriorityDTO::name});
    }
};

/// One page of the site's priorities.
struct PrioritySearchDTO
{
    QList<PriorityDTO> values;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"values", &PrioritySearchDTO::values, MostInPage});
    }
};
