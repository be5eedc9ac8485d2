#include "screens/detail/activity/CommentReaders.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Kind = CommentReaders::Kind;

TEST(CommentReaders, AnInternalNoteSaysSo)
{
    Comment comment;
    comment.isInternal = true;
    const auto readers = CommentReaders::of(comment, ProjectKind::ServiceDesk);
    EXPECT_EQ(readers.kind, Kind::Agents);
    EXPECT_EQ(readers.text, u"Note interne"_s);
    EXPECT_EQ(readers.hint, u"Visible uniquement par l'équipe, jamais par le client"_s);
}

TEST(CommentReaders, AnInternalNoteThatIsRestrictedTooIsAnInternalNote)
{
    Comment comment;
    comment.isInternal = true;
    comment.restrictedTo = u"Direction"_s;
    const auto readers = CommentReaders::of(comment, ProjectKind::ServiceDesk);
    EXPECT_EQ(readers.kind, Kind::Agents);
    EXPECT_EQ(readers.text, u"Note interne"_s);
}

TEST(CommentReaders, ARestrictedCommentNamesTheGroup)
{
    Comment comment;
    comment.restrictedTo = u"Direction"_s;
    const auto readers = CommentReaders::of(comment, ProjectKind::Ordinary);
    EXPECT_EQ(readers.kind, Kind::Group);
    EXPECT_EQ(readers.text, u"Restreint · Direction"_s);
    EXPECT_EQ(readers.hint, u"Visible uniquement par « Direction »"_s);
}

TEST(CommentReaders, InAServiceProjectAnOpenCommentIsSharedWithTheCustomer)
{
    const auto readers = CommentReaders::of({}, ProjectKind::ServiceDesk);
    EXPECT_EQ(readers.kind, Kind::Customer);
    EXPECT_EQ(readers.text, u"Visible par le client"_s);
    EXPECT_EQ(readers.hint, u"Réponse partagée avec le demandeur"_s);
}

TEST(CommentReaders, InAnOrdinaryProjectAnOpenCommentHasNoTag)
{
    const auto readers = CommentReaders::of({}, ProjectKind::Ordinary);
    EXPECT_EQ(readers.kind, Kind::Everybody);
    EXPECT_EQ(readers.text, QString());
    EXPECT_EQ(readers.hint, QString());
}

TEST(CommentReaders, TheInvisibleCharactersOfAGroupAreShown)
{
    Comment comment;
    comment.restrictedTo = u"Tous\u202E"_s;
    EXPECT_EQ(CommentReaders::of(comment, ProjectKind::Ordinary).text,
              u"Restreint · Tous[U+202E]"_s);
}
