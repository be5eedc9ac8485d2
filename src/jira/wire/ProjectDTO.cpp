#include "jira/wire/ProjectDTO.h"

#include "jira/WebAddress.h"
#include "jira/wire/Models.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<QUrl> pictureOf(const QMap<QString, QString> &addresses)
{
    const auto found = addresses.find(u"48x48"_s);
    return found == addresses.end() ? std::nullopt : webAddress(*found);
}

} // namespace

Project ProjectDTO::model() const
{
    Project project;
    project.id = id;
    project.key = key;
    project.name = name.value_or(key);
    project.avatarURL = avatarUrls ? pictureOf(*avatarUrls) : std::nullopt;
    project.issueTypes = modelsOf(issueTypes);
    project.isServiceDesk = projectTypeKey == u"service_desk"_s;
    return project;
}
