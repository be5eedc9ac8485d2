#include "screens/attachments/media/CommentFiles.h"

#include "richtext/ADFNodes.h"
#include "screens/attachments/Samples.h"

#include <gtest/gtest.h>

using namespace AttachmentSamples;
using namespace Qt::StringLiterals;

namespace {

ADFNode linkTo(const QString &address)
{
    return {.type = u"text"_s,
            .text = u"le fichier"_s,
            .marks = QList<ADFMark>{{u"link"_s, ADFAttributes{{u"href"_s, address}}}}};
}

ADFNode paragraph(const QList<ADFNode> &content)
{
    return {.type = u"paragraph"_s, .content = content};
}

Comment comment(const QStringList &ids, const QList<ADFNode> &blocks = {})
{
    Comment result;
    result.attachmentIDs = ids;
    if (!blocks.isEmpty())
        result.body = ADF::document(blocks);
    return result;
}

QList<Attachment> files()
{
    QList<Attachment> all{file(u"1"_s, u"a"_s), file(u"2"_s, u"b"_s), file(u"3"_s, u"c"_s)};
    all[2].contentURL = QUrl(u"https://exemple.fr/fichiers/c%20d.log"_s);
    return all;
}

QStringList idsOf(const Comment &comment)
{
    QStringList ids;
    for (const Attachment &attachment : referencedFiles(comment, files()))
        ids += attachment.id;
    return ids;
}

} // namespace

TEST(CommentFiles, ACommentWithoutBodyShowsItsOwnFilesInOrder)
{
    EXPECT_EQ(idsOf(comment({u"3"_s, u"1"_s})), QStringList({u"3"_s, u"1"_s}));
}

TEST(CommentFiles, AFileShownInsideTheTextIsNotRepeated)
{
    const auto body = paragraph({mediaWithID(u"1"_s)});
    EXPECT_EQ(idsOf(comment({u"1"_s, u"2"_s}, {body})), QStringList({u"2"_s}));
}

TEST(CommentFiles, AFileThatIsBothOwnedAndLinkedIsShownOnce)
{
    const auto body = paragraph({linkTo(u"https://site/secure/attachment/2/b"_s)});
    EXPECT_EQ(idsOf(comment({u"2"_s}, {body})), QStringList({u"2"_s}));
}

TEST(CommentFiles, LinkedFilesFollowTheOwnedOnes)
{
    const auto body = paragraph({linkTo(u"https://site/secure/attachment/1/a"_s),
                                 linkTo(u"https://exemple.fr/fichiers/c%20d.log"_s)});
    EXPECT_EQ(idsOf(comment({u"2"_s}, {body})), QStringList({u"2"_s, u"1"_s, u"3"_s}));
}

TEST(CommentFiles, ALinkThatNamesAnUnknownFileIsNotComparedWithAddresses)
{
    const auto body = paragraph({linkTo(u"https://site/secure/attachment/77/c"_s)});
    EXPECT_TRUE(idsOf(comment({}, {body})).isEmpty());
}

TEST(CommentFiles, IdentifiersAndLinksWithoutAFileVanish)
{
    const auto body = paragraph({linkTo(u"https://exemple.fr/"_s)});
    EXPECT_EQ(idsOf(comment({u"404"_s, u"1"_s}, {body})), QStringList({u"1"_s}));
}
