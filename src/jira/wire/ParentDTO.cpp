#include "jira/wire/ParentDTO.h"

#include "jira/wire/Models.h"

IssueRef ParentDTO::model() const
{
    const Fields known = fields.value_or(Fields());
    return {.id = id,
            .key = key,
            .summary = known.summary.value_or(key),
            .status = modelOf(known.status),
            .type = modelOf(known.issuetype)};
}
