#include "jira/wire/IssueTypeDTO.h"

IssueType IssueTypeDTO::model() const
{
    IssueType type;
    type.id = id;
    type.name = name;
    type.isSubtask = subtask.value_or(false);
    type.hierarchyLevel = hierarchyLevel.value_or(0);
    return type;
}
