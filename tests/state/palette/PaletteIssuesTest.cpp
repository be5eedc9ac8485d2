#include "state/palette/PaletteIssues.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Issue issue(const QString &key, const QString &summary = u"Résumé"_s)
{
    Issue issue;
    issue.key = key;
    issue.summary = summary;
    return issue;
}

IssueList numbered(const QString &project, int count, const QString &summary)
{
    IssueList issues;
    for (int i = 1; i <= count; ++i)
        issues.append(issue(project + u'-' + QString::number(i), summary));
    return issues;
}

/// A list of issues and the texts in which a search looks.
struct Prepared
{
    explicit Prepared(IssueList list) : issues(std::move(list))
    {
        for (const auto &one : issues)
            texts.append(*one);
    }
    operator SearchableIssues() const { return {issues, texts}; }

    IssueList issues;
    SearchTexts texts;
};

QStringList keys(const IssueList &issues)
{
    QStringList list;
    for (const auto &one : issues)
        list += one->key;
    return list;
}

} // namespace

TEST(PaletteIssues, KeySummaryLabelsAndAssigneeAreSearched)
{
    Issue labelled = issue(u"MOB-2"_s);
    labelled.labels = {u"facturation"_s};
    Issue assigned = issue(u"MOB-3"_s);
    assigned.assignee = JiraUser{u"u"_s, u"Élodie Facteur"_s, {}, {}};
    const Prepared list({issue(u"FACT-1"_s), labelled, assigned, issue(u"MOB-4"_s, u"La FACTURE"_s),
                         issue(u"MOB-5"_s)});

    EXPECT_EQ(keys(paletteIssues(u" fact\n"_s, {list}, {})),
              (QStringList{u"FACT-1"_s, u"MOB-2"_s, u"MOB-3"_s, u"MOB-4"_s}));
    EXPECT_EQ(keys(paletteIssues(u"ÉLODIE"_s, {list}, {})), QStringList{u"MOB-3"_s});
}

TEST(PaletteIssues, WithoutAWordThereIsNoIssue)
{
    const Prepared list({issue(u"MOB-1"_s)});
    EXPECT_TRUE(paletteIssues(u" \n "_s, {list}, {issue(u"MOB-2"_s)}).isEmpty());
    EXPECT_TRUE(paletteIssues(QString(), {list}, {issue(u"MOB-2"_s)}).isEmpty());
}

TEST(PaletteIssues, ADiacriticAloneIsContainedNowhereInMemory)
{
    const Prepared list({issue(u"MOB-1"_s, u"e\u0301te\u0301"_s)});
    EXPECT_TRUE(paletteIssues(u"\u0301"_s, {list}, {}).isEmpty());
}

TEST(PaletteIssues, EveryWordIsLookedForInAnOpenIssue)
{
    Issue closed = issue(u"MOB-1"_s, u"Export des factures"_s);
    closed.status = IssueStatus(u"3"_s, u"Terminé"_s, u"done"_s);
    Issue labelled = issue(u"MOB-2"_s, u"Export CSV"_s);
    labelled.labels = {u"Factures"_s};
    const Prepared list({closed, labelled, issue(u"MOB-3"_s, u"Export PDF"_s),
                         issue(u"MOB-4"_s, u"FACTURES, puis export"_s)});
    const Prepared open({issue(u"MOB-4"_s, u"Une copie: export, factures"_s),
                         issue(u"WEB-9"_s, u"Factures sans éxport"_s)});

    EXPECT_EQ(keys(openIssuesWith({u"export"_s, u" "_s, u"factures"_s}, {list, open})),
              (QStringList{u"MOB-2"_s, u"MOB-4"_s, u"WEB-9"_s}));
    EXPECT_EQ(keys(openIssuesWith({u"web-9"_s}, {list, open})), QStringList{u"WEB-9"_s});
}

TEST(PaletteIssues, ClosedIssuesTakeNoPlaceAmongTheOpenOnes)
{
    IssueList many;
    for (int i = 0; i < mostPaletteIssues; ++i) {
        Issue closed = issue(u"DONE-"_s + QString::number(i));
        closed.status = IssueStatus(u"3"_s, u"Terminé"_s, u"done"_s);
        many.append(closed);
    }
    many += numbered(u"A"_s, int(mostPaletteIssues) + 1, u"Résumé"_s);
    const Prepared list(many);
    const auto found = openIssuesWith({u"resume"_s}, {list});
    EXPECT_EQ(found.size(), mostPaletteIssues);
    EXPECT_EQ(found.first()->key, u"A-1"_s);
}

TEST(PaletteIssues, WithoutWordsThereIsNoOpenIssue)
{
    const Prepared list({issue(u"MOB-1"_s, u"e\u0301te\u0301"_s)});
    EXPECT_TRUE(openIssuesWith({}, {list}).isEmpty());
    EXPECT_TRUE(openIssuesWith({QString(), u" \t"_s, u"\u0301"_s}, {list}).isEmpty());
}

TEST(PaletteIssues, TheListComesBeforeTheUsersOpenIssues)
{
    const Prepared list({issue(u"B-1"_s), issue(u"B-2"_s)});
    const Prepared open({issue(u"B-2"_s), issue(u"A-1"_s)});
    EXPECT_EQ(keys(paletteIssues(u"résumé"_s, {list, open}, {})),
              (QStringList{u"B-1"_s, u"B-2"_s, u"A-1"_s}));
}

TEST(PaletteIssues, FoundLocallyAndRemotelyAnIssueAppearsOnceWithTheLocalDataInTheLocalPosition)
{
    const Prepared list({issue(u"MOB-1"_s, u"Clavier d'ici"_s), issue(u"MOB-2"_s, u"Clavier"_s)});
    const auto found = paletteIssues(
        u"clavier"_s, {list}, {issue(u"MOB-9"_s), issue(u"MOB-1"_s, u"Clavier de là-bas"_s)});
    EXPECT_EQ(keys(found), (QStringList{u"MOB-1"_s, u"MOB-2"_s, u"MOB-9"_s}));
    EXPECT_EQ(found[0]->summary, u"Clavier d'ici"_s);
}

TEST(PaletteIssues, WhatTheServerFoundIsNotTestedAgain)
{
    const Prepared list({});
    EXPECT_EQ(keys(paletteIssues(u"introuvable"_s, {list}, {issue(u"MOB-1"_s)})),
              QStringList{u"MOB-1"_s});
}

TEST(PaletteIssues, TwentyLocalMatchesAndFiveRemoteOnesYieldTheFirstTwelveLocalOnes)
{
    const Prepared list(numbered(u"MOB"_s, 20, u"clavier"_s));
    const auto found = paletteIssues(u"clavier"_s, {list}, numbered(u"WEB"_s, 5, u"clavier"_s));
    EXPECT_EQ(keys(found), keys(list.issues.first(12)));
}

TEST(PaletteIssues, RemoteOnesFillUpToTwelve)
{
    const Prepared list(numbered(u"MOB"_s, 10, u"clavier"_s));
    const auto found = paletteIssues(u"clavier"_s, {list}, numbered(u"WEB"_s, 5, u"clavier"_s));
    EXPECT_EQ(found.size(), 12);
    EXPECT_EQ(keys(found).last(), u"WEB-2"_s);
}

TEST(PaletteIssues, ARowOpensItsIssue)
{
    Issue one = issue(u"MOB-1"_s, u"Clavier"_s);
    one.status = IssueStatus::guessed(u"En cours"_s);
    const auto row = issueItem(one);
    EXPECT_EQ(row.id, u"issue:MOB-1"_s);
    EXPECT_EQ(row.title, u"Clavier"_s);
    EXPECT_EQ(row.subtitle, u"MOB-1"_s);
    EXPECT_EQ(row.icon, OptionIcon{one.status});
    EXPECT_FALSE(row.keepsOpen);
    EXPECT_EQ(issueKeyOf(row), u"MOB-1"_s);
    EXPECT_EQ(issueKeyOf(OptionItem{.id = u"issue:MOB-1"_s}), std::nullopt);
}

TEST(PaletteIssues, WhatIsListedWithTheSameTextsNeedsNoSecondSearch)
{
    const SharedIssue shared = issue(u"MOB-1"_s);
    Issue elsewhere = issue(u"MOB-3"_s, u"Ailleurs"_s);
    Issue later = issue(u"MOB-2"_s);
    later.updated = QDateTime::currentDateTimeUtc();
    const IssueList listed{shared, issue(u"MOB-2"_s), issue(u"MOB-3"_s)};
    EXPECT_EQ(keys(notYetSearched({shared, later, elsewhere, issue(u"MOB-4"_s)}, listed)),
              (QStringList{u"MOB-3"_s, u"MOB-4"_s}));
    EXPECT_TRUE(notYetSearched({}, listed).isEmpty());
    EXPECT_EQ(keys(notYetSearched({shared}, {})), QStringList{u"MOB-1"_s});
}
