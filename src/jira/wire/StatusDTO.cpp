#include "jira/wire/StatusDTO.h"

IssueStatus StatusDTO::model() const
{
    return {id, name, statusCategory ? statusCategory->key : std::nullopt};
}
