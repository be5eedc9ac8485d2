#include "screens/detail/activity/CommentFilter.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Comment reply()
{
    return {};
}

Comment note()
{
    Comment comment;
    comment.isInternal = true;
    return comment;
}

Comment restricted()
{
    Comment comment;
    comment.restrictedTo = u"Direction"_s;
    return comment;
}

} // namespace

TEST(CommentFilter, InternalAndRestrictedCommentsAreNotes)
{
    EXPECT_FALSE(isNote(reply()));
    EXPECT_TRUE(isNote(note()));
    EXPECT_TRUE(isNote(restricted()));
}

TEST(CommentFilter, ARestrictionToAnEmptyNameIsARestriction)
{
    Comment comment;
    comment.restrictedTo = QString();
    EXPECT_TRUE(isNote(comment));
}

TEST(CommentFilter, EachFilterShowsItsOwn)
{
    EXPECT_TRUE(isShown(reply(), CommentFilter::All));
    EXPECT_TRUE(isShown(note(), CommentFilter::All));
    EXPECT_TRUE(isShown(reply(), CommentFilter::Replies));
    EXPECT_FALSE(isShown(note(), CommentFilter::Replies));
    EXPECT_FALSE(isShown(restricted(), CommentFilter::Replies));
    EXPECT_FALSE(isShown(reply(), CommentFilter::Notes));
    EXPECT_TRUE(isShown(note(), CommentFilter::Notes));
    EXPECT_TRUE(isShown(restricted(), CommentFilter::Notes));
}

TEST(CommentFilter, TheTitlesCountWhatTheirFilterShows)
{
    const auto counts = CommentCounts::of({reply(), note(), reply(), restricted(), reply()});
    EXPECT_EQ(filterTitles(counts, ProjectKind::Ordinary),
              QStringList({u"Tout 5"_s, u"Commentaires 3"_s, u"Notes internes 2"_s}));
    EXPECT_EQ(filterTitles(counts, ProjectKind::ServiceDesk),
              QStringList({u"Tout 5"_s, u"Réponses 3"_s, u"Notes internes 2"_s}));
}

TEST(CommentFilter, AServiceProjectWithoutNotesStillOffersTheFilter)
{
    const auto counts = CommentCounts::of({reply()});
    EXPECT_TRUE(offersFilter(counts, ProjectKind::ServiceDesk));
    EXPECT_EQ(filterTitles(counts, ProjectKind::ServiceDesk).last(), u"Notes internes 0"_s);
    EXPECT_TRUE(offersFilter({}, ProjectKind::ServiceDesk));
}

TEST(CommentFilter, AnOrdinaryProjectOffersTheFilterOnlyWithNotes)
{
    EXPECT_FALSE(offersFilter(CommentCounts::of({reply(), reply()}), ProjectKind::Ordinary));
    EXPECT_TRUE(offersFilter(CommentCounts::of({reply(), note()}), ProjectKind::Ordinary));
    EXPECT_TRUE(offersFilter(CommentCounts::of({restricted()}), ProjectKind::Ordinary));
}

TEST(CommentFilter, OneCommentIsSingular)
{
    EXPECT_EQ(commentCountText(0), u"0 commentaires"_s);
    EXPECT_EQ(commentCountText(1), u"1 commentaire"_s);
    EXPECT_EQ(commentCountText(12), u"12 commentaires"_s);
}

TEST(CommentFilter, AnEmptyFilterSaysWhatIsMissing)
{
    EXPECT_EQ(emptyText(CommentFilter::All), QString());
    EXPECT_EQ(emptyText(CommentFilter::Replies), u"Aucun commentaire public sur ce ticket."_s);
    EXPECT_EQ(emptyText(CommentFilter::Notes), u"Aucune note interne sur ce ticket."_s);
}
