#include "shell/StatusMenu.h"

#include "model/OneLineText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Kind = StatusMenuEntry::Kind;

constexpr qsizetype mostIssues = 12;

StatusMenuEntry line(Kind kind, const QString &text = {})
{
    return {kind, text, {}, {}};
}

QList<StatusMenuEntry> issueLines(const IssueList &issues)
{
    if (issues.isEmpty())
        return {line(Kind::NoIssue, u"Aucun ticket ouvert"_s)};
    QList<StatusMenuEntry> lines{line(Kind::Heading, u"Mes tickets ouverts"_s)};
    for (const auto &issue : issues.first(std::min(mostIssues, issues.size())))
        lines.append({Kind::Issue, issue->key + u"  "_s + oneLine(issue->summary), issue->key,
                      issue->status});
    return lines;
}

QList<StatusMenuEntry> sessionLines(const IssueList &issues)
{
    QList<StatusMenuEntry> lines = issueLines(issues);
    lines.append(line(Kind::Divider));
    lines.append(line(Kind::NewIssue, u"Nouveau ticket…"_s));
    lines.append(line(Kind::Refresh, u"Actualiser"_s));
    lines.append(line(Kind::Divider));
    return lines;
}

} // namespace

QList<StatusMenuEntry> statusMenu(AppStore::Phase phase, const IssueList &openIssues)
{
    QList<StatusMenuEntry> lines;
    if (phase == AppStore::Phase::Ready)
        lines = sessionLines(openIssues);
    lines.append(line(Kind::ShowMain, u"Ouvrir Velmora"_s));
    lines.append(line(Kind::Quit, u"Quitter"_s));
    return lines;
}
