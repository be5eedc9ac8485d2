#include "jira/wire/ProjectDTO.h"

#include "jira/WebAddress.h"
#include "jira/wire/Models.h"

using namespace Qt::StringLiterals;

Project ProjectDTO::model() const
{
    Project project;
    project.id = id;
    project.key = key;
    project.name = name.value_or(key);
    project.avatarURL = avatarUrls ? webAddress(avatarUrls->large) : std::nullopt;
    project.issueTypes = modelsOf(issueTypes);
    project.isServiceDesk = projectTypeKey == u"service_desk"_s;
    return project;
}
