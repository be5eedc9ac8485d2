#include "state/edits/OpenEdits.h"

#include "state/recap/ActivitySamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Source = OpenEdits::Source;

const QDateTime Start({2026, 11, 4}, {9, 0}, QTimeZone::utc());

Issue titled(const QString &title, const QDateTime &updated = Start)
{
    Issue issue;
    issue.key = u"WEB-1"_s;
    issue.summary = title;
    issue.updated = updated;
    return issue;
}

OptimisticEdit renaming(const QString &before, const QString &after)
{
    return {u"WEB-1"_s, FieldEdit<&Issue::summary>{before, after}};
}

/// What the user sees after the responses of a site, tested with one issue whose title is edited.
class OpenEditsTest : public testing::Test
{
protected:
    QString shown(const Issue &answer, const OpenEdits::Reading &reading,
                  Source source = Source::Issue)
    {
        return edits.laidOver(SharedIssue(answer), reading, source)->summary;
    }
    static QString titleOf(const OptimisticEdit &edit)
    {
        Issue issue;
        edit.apply(issue);
        return issue.summary;
    }

    OpenEdits edits;
    QDateTime now = Start;
};

TEST_F(OpenEditsTest, anAnswerWithoutEditsStaysTheSameObject)
{
    const SharedIssue answer = titled(u"A"_s);
    const auto reading = edits.beginReading(now);
    EXPECT_TRUE(edits.laidOver(answer, reading, Source::Issue).isSameObject(answer));
}

TEST_F(OpenEditsTest, anOpenEditIsLaidOverEveryAnswer)
{
    edits.open(renaming(u"A"_s, u"B"_s), Start);
    EXPECT_EQ(shown(titled(u"A"_s), edits.beginReading(now)), u"B"_s);
    EXPECT_EQ(shown(titled(u"A"_s), edits.beginReading(now), Source::Search), u"B"_s);
}

TEST_F(OpenEditsTest, anAnswerThatWasAskedForBeforeTheConfirmationDoesNotUndoTheEdit)
{
    const auto reading = edits.beginReading(now);
    const auto id = edits.open(renaming(u"A"_s, u"B"_s), Start);
    edits.confirm(id, now);
    EXPECT_EQ(shown(titled(u"A"_s), reading), u"B"_s);
}

TEST_F(OpenEditsTest, evenWhenItComesLongAfter)
{
    const auto reading = edits.beginReading(now);
    const auto id = edits.open(renaming(u"A"_s, u"B"_s), Start);
    edits.confirm(id, now);
    now = Start.addSecs(3600);
    edits.laidOver(IssueList(), edits.beginReading(now), Source::Search);
    EXPECT_EQ(shown(titled(u"A"_s), reading), u"B"_s);
}

TEST_F(OpenEditsTest, anIssueThatWasAskedForAfterTheConfirmationIsAsTheSiteTells)
{
    const auto id = edits.open(renaming(u"A"_s, u"B"_s), Start);
    edits.confirm(id, now);
    EXPECT_EQ(shown(titled(u"C"_s), edits.beginReading(now)), u"C"_s);
}

TEST_F(OpenEditsTest, aSearchThatLagsBehindDoesNotUndoAConfirmedEdit)
{
    const auto id = edits.open(renaming(u"A"_s, u"B"_s), Start);
    edits.confirm(id, now);
    now = Start.addDuration(OpenEdits::SearchLag - 1s);
    EXPECT_EQ(shown(titled(u"A"_s), edits.beginReading(now), Source::Search), u"B"_s);

    now = Start.addDuration(OpenEdits::SearchLag);
    EXPECT_EQ(shown(titled(u"A"_s), edits.beginReading(now), Source::Search), u"A"_s)
        << "for a bounded time";
}

TEST_F(OpenEditsTest, whatSomebodyElseWroteAfterwardsIsShown)
{
    const auto id = edits.open(renaming(u"A"_s, u"B"_s), Start);
    edits.confirm(id, now);
    // The search index is up to date, and a later search returns a later change.
    EXPECT_EQ(shown(titled(u"B"_s, Start.addSecs(1)), edits.beginReading(now), Source::Search),
              u"B"_s);
    EXPECT_EQ(shown(titled(u"C"_s, Start.addSecs(9)), edits.beginReading(now), Source::Search),
              u"C"_s);
    EXPECT_EQ(shown(titled(u"B"_s, Start.addSecs(1)), edits.beginReading(now), Source::Search),
              u"C"_s)
        << "a search that lags does not take it back";
}

TEST_F(OpenEditsTest, aRefusalGoesBackToWhatStoodThereBefore)
{
    const auto id = edits.open(renaming(u"A"_s, u"B"_s), Start);
    EXPECT_EQ(titleOf(edits.refuse(id)), u"A"_s);
    EXPECT_EQ(shown(titled(u"A"_s), edits.beginReading(now)), u"A"_s);
}

TEST_F(OpenEditsTest, aRefusalGoesBackToTheNewestValueThatTheSiteTold)
{
    const auto id = edits.open(renaming(u"A"_s, u"B"_s), Start);
    EXPECT_EQ(shown(titled(u"C"_s, Start.addSecs(60)), edits.beginReading(now)), u"B"_s);
    EXPECT_EQ(shown(titled(u"A"_s, Start), edits.beginReading(now), Source::Search), u"B"_s)
        << "an older record";
    EXPECT_EQ(titleOf(edits.refuse(id)), u"C"_s);
}

TEST_F(OpenEditsTest, theFirstOfTwoEditsIsRefused)
{
    const auto first = edits.open(renaming(u"A"_s, u"B"_s), Start);
    const auto second = edits.open(renaming(u"B"_s, u"C"_s), Start);
    EXPECT_EQ(titleOf(edits.refuse(first)), u"A"_s);
    const auto confirmed = edits.confirm(second, now);
    ASSERT_TRUE(confirmed);
    EXPECT_EQ(titleOf(*confirmed), u"C"_s);
}

TEST_F(OpenEditsTest, theSecondOfTwoEditsIsRefusedWhileTheFirstIsOpen)
{
    const auto first = edits.open(renaming(u"A"_s, u"B"_s), Start);
    const auto second = edits.open(renaming(u"B"_s, u"C"_s), Start);
    EXPECT_EQ(titleOf(edits.refuse(second)), u"B"_s);
    EXPECT_EQ(titleOf(edits.refuse(first)), u"A"_s);
}

TEST_F(OpenEditsTest, bothOfTwoEditsAreRefused)
{
    const auto first = edits.open(renaming(u"A"_s, u"B"_s), Start);
    const auto second = edits.open(renaming(u"B"_s, u"C"_s), Start);
    EXPECT_EQ(titleOf(edits.refuse(first)), u"A"_s);
    EXPECT_EQ(titleOf(edits.refuse(second)), u"A"_s) << "the site never had the value between";
}

TEST_F(OpenEditsTest, theSecondOfTwoEditsIsRefusedAfterTheFirstWasConfirmed)
{
    const auto first = edits.open(renaming(u"A"_s, u"B"_s), Start);
    const auto second = edits.open(renaming(u"B"_s, u"C"_s), Start);
    EXPECT_FALSE(edits.confirm(first, now)) << "the second one is shown";
    EXPECT_EQ(titleOf(edits.refuse(second)), u"B"_s);
    EXPECT_EQ(shown(titled(u"A"_s), edits.beginReading(now), Source::Search), u"B"_s);
}

TEST_F(OpenEditsTest, theSiteHasWhatItConfirmedLast)
{
    const auto first = edits.open(renaming(u"A"_s, u"B"_s), Start);
    const auto second = edits.open(renaming(u"B"_s, u"C"_s), Start);
    EXPECT_FALSE(edits.confirm(second, now));
    const auto shownAgain = edits.confirm(first, now);
    ASSERT_TRUE(shownAgain);
    EXPECT_EQ(titleOf(*shownAgain), u"B"_s);
}

TEST_F(OpenEditsTest, fieldsDoNotDisturbEachOther)
{
    const auto title = edits.open(renaming(u"A"_s, u"B"_s), Start);
    edits.open({u"WEB-1"_s, FieldEdit<&Issue::labels>{{}, {u"web"_s}}}, Start);
    edits.open({u"WEB-2"_s, FieldEdit<&Issue::summary>{u"X"_s, u"Y"_s}}, Start);
    edits.refuse(title);
    const SharedIssue issue =
        edits.laidOver(SharedIssue(titled(u"A"_s)), edits.beginReading(now), Source::Issue);
    EXPECT_EQ(issue->summary, u"A"_s);
    EXPECT_EQ(issue->labels, QStringList(u"web"_s));
}

TEST_F(OpenEditsTest, aListBringsNoDescriptionToLayOver)
{
    ADFNode document;
    document.type = u"doc"_s;
    edits.open({u"WEB-1"_s, FieldEdit<&Issue::description>{{}, document}}, Start);
    const SharedIssue listed = titled(u"A"_s);
    EXPECT_TRUE(
        edits.laidOver(listed, edits.beginReading(now), Source::Search).isSameObject(listed));
    EXPECT_TRUE(
        edits.laidOver(listed, edits.beginReading(now), Source::Issue)->description.has_value());
}

TEST_F(OpenEditsTest, aStatusKeepsTheLaterOfTwoDates)
{
    const IssueStatus done = IssueStatus::guessed(u"Terminé"_s);
    const StatusEdit move{{IssueStatus::guessed(u"À faire"_s), done}, {Start, Start.addSecs(5)}};
    const auto id = edits.open({u"WEB-1"_s, move}, Start);
    const auto reading = edits.beginReading(now);
    const auto laid = [&](const QDateTime &updated) {
        return edits.laidOver(SharedIssue(titled(u"A"_s, updated)), reading, Source::Issue)
            ->updated;
    };
    EXPECT_EQ(laid(Start), Start.addSecs(5));
    EXPECT_EQ(laid(Start.addSecs(8)), Start.addSecs(8));
    EXPECT_TRUE(edits.mayLackStatus(u"WEB-1"_s, reading));
    const IssueStatus closed = IssueStatus::guessed(u"Fermé"_s);
    const auto confirmed = edits.confirm(id, closed, now);
    Issue issue;
    confirmed->apply(issue);
    EXPECT_EQ(issue.status, closed);
    EXPECT_TRUE(edits.mayLackStatus(u"WEB-1"_s, reading));
    EXPECT_FALSE(edits.mayLackStatus(u"WEB-1"_s, edits.beginReading(now)));
}

TEST_F(OpenEditsTest, anUploadAndARemovalAreLaidOverTheRecordOfTheIssue)
{
    Attachment kept, gone, fresh;
    kept.id = u"1"_s;
    gone.id = u"2"_s;
    fresh.id = u"3"_s;
    const auto reading = edits.beginReading(now);
    edits.open({u"WEB-1"_s, AttachmentRemoval{gone}}, Start);
    edits.noteStored({u"WEB-1"_s, AttachmentAddition{fresh}}, now);
    Issue answer = titled(u"A"_s);
    answer.attachments = {kept, gone};
    EXPECT_EQ(edits.laidOver(SharedIssue(answer), reading, Source::Issue)->attachments,
              QList<Attachment>({kept, fresh}));
    EXPECT_EQ(
        edits.laidOver(SharedIssue(answer), edits.beginReading(now), Source::Issue)->attachments,
        QList<Attachment>({kept}))
        << "somebody has deleted the new one";
}

TEST_F(OpenEditsTest, aCommentThatWasPostedMeanwhileStaysOnce)
{
    Comment old, own;
    old.id = u"1"_s;
    own.id = u"2"_s;
    const auto reading = edits.beginReading(now);
    edits.noteComment(u"WEB-1"_s, own);
    EXPECT_EQ(edits.laidOver({old}, u"WEB-1"_s, reading), QList<Comment>({old, own}));
    EXPECT_EQ(edits.laidOver({old, own}, u"WEB-1"_s, reading), QList<Comment>({old, own}));
    EXPECT_EQ(edits.laidOver({old}, u"WEB-1"_s, edits.beginReading(now)), QList<Comment>({old}));
    EXPECT_EQ(edits.laidOver({old}, u"WEB-2"_s, reading), QList<Comment>({old}));
}

TEST_F(OpenEditsTest, aCreatedIssueIsNewForABoundedTime)
{
    edits.noteCreated(u"WEB-9"_s, now);
    EXPECT_TRUE(edits.isJustCreated(u"WEB-9"_s, now.addSecs(60)));
    EXPECT_FALSE(edits.isJustCreated(u"WEB-9"_s, now.addDuration(OpenEdits::SearchLag)));
    EXPECT_FALSE(edits.isJustCreated(u"WEB-8"_s, now));
}

} // namespace
