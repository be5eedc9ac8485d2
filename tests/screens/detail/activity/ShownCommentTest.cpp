#include "screens/detail/activity/ShownComment.h"

#include "richtext/ADFNodes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const UserCalendar paris{QLocale(QLocale::French, QLocale::France), QTimeZone("Europe/Paris")};
const QDateTime now({2026, 10, 29}, {13, 32}, QTimeZone::utc());

Comment written(const QString &name, qint64 secondsAgo)
{
    Comment comment;
    comment.id = u"c1"_s;
    comment.author = JiraUser{u"u1"_s, name, {}, {}};
    comment.created = now.addSecs(-secondsAgo);
    return comment;
}

ShownComment shown(const Comment &comment, ProjectKind project = ProjectKind::Ordinary)
{
    return ShownComment::of(comment, project, now, paris);
}

bool showsBody(const QList<ADFNode> &blocks)
{
    Comment comment;
    comment.body = ADF::document(blocks);
    return shown(comment).hasBody;
}

ADFNode paragraph(const QList<ADFNode> &content)
{
    return ADF::container(u"paragraph", content);
}

} // namespace

TEST(ShownComment, TheTimeIsRelativeAndItsHintIsInFull)
{
    const auto comment = shown(written(u"Elsa Karoubi"_s, qint64(4) * 3600));
    EXPECT_EQ(comment.age, u"4 h"_s);
    EXPECT_EQ(comment.date, u"29 octobre 2026 à 10:32"_s);
}

TEST(ShownComment, OneSentenceSaysAuthorTimeAndReaders)
{
    Comment comment = written(u"Elsa Karoubi"_s, qint64(4) * 3600);
    EXPECT_EQ(shown(comment).sentence, u"Elsa Karoubi a commenté il y a 4 h"_s);
    EXPECT_EQ(shown(comment, ProjectKind::ServiceDesk).sentence,
              u"Elsa Karoubi a commenté il y a 4 h, visible par le client"_s);
    comment.restrictedTo = u"Direction"_s;
    EXPECT_EQ(shown(comment).sentence,
              u"Elsa Karoubi a commenté il y a 4 h, visible uniquement par « Direction »"_s);
    comment.isInternal = true;
    EXPECT_EQ(shown(comment).sentence, u"Elsa Karoubi a commenté il y a 4 h, note interne"_s);
}

TEST(ShownComment, WithoutAnAuthorItIsUnknown)
{
    Comment comment = written({}, 0);
    comment.author.reset();
    EXPECT_EQ(shown(comment).name, u"Inconnu"_s);
    EXPECT_FALSE(shown(comment).hasAuthor);
}

TEST(ShownComment, AnAuthorWithoutANameIsUnknown)
{
    EXPECT_EQ(shown(written(QString(), 0)).name, u"Inconnu"_s);
    EXPECT_EQ(shown(written(u" \u00A0\t"_s, 0)).name, u"Inconnu"_s);
}

TEST(ShownComment, WithoutATimeNoneIsClaimed)
{
    Comment comment = written(u"Elsa Karoubi"_s, 0);
    comment.created = {};
    EXPECT_EQ(shown(comment).age, QString());
    EXPECT_EQ(shown(comment).date, QString());
    EXPECT_EQ(shown(comment).sentence, u"Elsa Karoubi a commenté"_s);
}

TEST(ShownComment, AnEmptyBodyIsNotShown)
{
    EXPECT_FALSE(shown(Comment()).hasBody);
    EXPECT_FALSE(showsBody({}));
    EXPECT_FALSE(showsBody({paragraph({}), paragraph({ADF::text(u" \n"_s)})}));
}

TEST(ShownComment, ABodyOfOneWordRuleOrMediaIsShown)
{
    EXPECT_TRUE(showsBody({paragraph({ADF::text(u"Oui"_s)})}));
    EXPECT_TRUE(showsBody({ADF::container(u"rule", {})}));
    EXPECT_TRUE(showsBody({ADF::container(u"mediaSingle", {})}));
    EXPECT_TRUE(showsBody({paragraph({ADF::container(u"mention", {})})}));
}

TEST(ShownComment, OnlyAttachmentsAndLinksCanReferToFiles)
{
    Comment comment;
    EXPECT_FALSE(shown(comment).hasReferences);
    comment.attachmentIDs = {u"10"_s};
    EXPECT_TRUE(shown(comment).hasReferences);
    comment.attachmentIDs.clear();
    const ADFMark link{u"link"_s, ADFAttributes{{u"href"_s, JSONValue(u"https://e.fr/f"_s)}}};
    comment.body = ADF::document({paragraph({ADF::text(u"f"_s, {link})})});
    EXPECT_TRUE(shown(comment).hasReferences);
}
