#include "model/Issue.h"

#include "model/ParsedInteger.h"
#include "model/TextFolding.h"

using namespace Qt::StringLiterals;

qint64 Issue::number() const
{
    const auto afterDash = QStringView(key).sliced(key.lastIndexOf(u'-') + 1);
    return parsedInteger(afterDash).value_or(0);
}

QString Issue::branchName() const
{
    const QString slug = slugified(summary);
    const QString name = "feature/"_L1 + key;
    return slug.isEmpty() ? name : name + u'-' + slug;
}

std::optional<ActivityEvent> Issue::lastActivity() const
{
    // `max_element` returns the first of several events with the same date.
    const auto latest = std::ranges::max_element(activity, {}, &ActivityEvent::date);
    return latest == activity.end() ? std::nullopt : std::optional(*latest);
}
