#include "shell/StatusMenu.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Kind = StatusMenuEntry::Kind;
constexpr auto ready = AppStore::Phase::Ready;

IssueList issues(int count)
{
    IssueList list;
    for (int i = 1; i <= count; ++i) {
        Issue issue;
        issue.key = u"MOB-%1"_s.arg(i);
        issue.summary = u"Résumé %1"_s.arg(i);
        issue.status = IssueStatus::guessed(u"En cours"_s);
        list.append(issue);
    }
    return list;
}

QStringList texts(const QList<StatusMenuEntry> &entries)
{
    QStringList list;
    for (const auto &entry : entries)
        list += entry.kind == Kind::Divider ? u"-"_s : entry.text;
    return list;
}

qsizetype issueLines(const QList<StatusMenuEntry> &entries)
{
    return std::ranges::count(entries, Kind::Issue, &StatusMenuEntry::kind);
}

} // namespace

TEST(StatusMenu, InASessionItListsTheOpenIssuesAndItsCommands)
{
    const auto menu = statusMenu(ready, issues(2));
    EXPECT_EQ(texts(menu),
              (QStringList{u"Mes tickets ouverts"_s, u"MOB-1  Résumé 1"_s, u"MOB-2  Résumé 2"_s,
                           u"-"_s, u"Nouveau ticket…"_s, u"Actualiser"_s, u"-"_s,
                           u"Ouvrir Velmora"_s, u"Quitter"_s}));
    EXPECT_EQ(menu[1].issueKey, u"MOB-1"_s);
    EXPECT_EQ(menu[1].status, IssueStatus::guessed(u"En cours"_s));
}

TEST(StatusMenu, WithoutAnOpenIssueItSaysSo)
{
    EXPECT_EQ(texts(statusMenu(ready, {})).first(), u"Aucun ticket ouvert"_s);
}

TEST(StatusMenu, WithExactlyTwelveOpenIssuesAllAreShown)
{
    EXPECT_EQ(issueLines(statusMenu(ready, issues(12))), 12);
}

TEST(StatusMenu, WithThirteenTheFirstTwelveAreShownAndNoLineSaysSo)
{
    const auto menu = statusMenu(ready, issues(13));
    EXPECT_EQ(issueLines(menu), 12);
    EXPECT_EQ(menu[12].issueKey, u"MOB-12"_s);
    EXPECT_EQ(menu[13].kind, Kind::Divider);
}

TEST(StatusMenu, WithoutASessionThereIsOnlyTheWayInAndTheWayOut)
{
    for (const auto phase : {AppStore::Phase::Launching, AppStore::Phase::SignedOut})
        EXPECT_EQ(texts(statusMenu(phase, issues(3))),
                  (QStringList{u"Ouvrir Velmora"_s, u"Quitter"_s}));
}
