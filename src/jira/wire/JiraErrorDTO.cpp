#include "jira/wire/JiraErrorDTO.h"

using namespace Qt::StringLiterals;

namespace {

QStringList linesOf(const QMap<QString, QString> &errors)
{
    QStringList lines;
    for (auto error = errors.begin(); error != errors.end(); ++error)
        lines.append(error.key() + " : "_L1 + error.value());
    return lines;
}

} // namespace

QString JiraErrorDTO::text() const
{
    QStringList lines = errorMessages.value_or(QStringList());
    if (errors)
        lines += linesOf(*errors);
    if (message)
        lines.append(*message);
    return lines.join(u'\n');
}
