#include "screens/attachments/facts/AttachmentFile.h"

#include "screens/attachments/Samples.h"

#include <gtest/gtest.h>

using namespace AttachmentSamples;
using namespace Qt::StringLiterals;

TEST(AttachmentFile, APictureIsShownByItsThumbnail)
{
    Attachment attachment = picture(u"1"_s, u"a.png"_s);
    EXPECT_EQ(AttachmentFile{attachment}.picture(), QUrl());
    attachment.contentURL = QUrl(u"https://site/content"_s);
    EXPECT_EQ(AttachmentFile{attachment}.picture(), attachment.contentURL);
    attachment.thumbnailURL = QUrl(u"https://site/thumbnail"_s);
    EXPECT_EQ(AttachmentFile{attachment}.picture(), attachment.thumbnailURL);
}

TEST(AttachmentFile, AFileOfAnotherTypeHasNoPicture)
{
    Attachment attachment = file(u"1"_s, u"a.log"_s);
    attachment.contentURL = attachment.thumbnailURL = QUrl(u"https://site/content"_s);
    EXPECT_EQ(AttachmentFile{attachment}.picture(), QUrl());
    EXPECT_EQ(AttachmentFile{attachment}.symbol(), u"file.text"_s);
}

TEST(AttachmentFile, ItsHintsNameTheFileItsAuthorAndTheClicks)
{
    Attachment attachment = file(u"1"_s, u"a.log"_s);
    EXPECT_EQ(AttachmentFile{attachment}.tileHint(),
              u"a.log\n? · clic : aperçu, double-clic : ouvrir"_s);
    attachment.author = JiraUser();
    attachment.author->name = u"Elsa Karoubi"_s;
    EXPECT_EQ(AttachmentFile{attachment}.tileHint(),
              u"a.log\nElsa Karoubi · clic : aperçu, double-clic : ouvrir"_s);
    EXPECT_EQ(AttachmentFile{attachment}.inlineHint(), u"a.log · clic pour l'aperçu"_s);
}

TEST(AttachmentFile, CharactersThatHideInItsNameAreVisible)
{
    EXPECT_EQ(AttachmentFile{file(u"1"_s, u"facture\u202Egpj\n.exe"_s)}.name(),
              u"facture[U+202E]gpj[U+000A].exe"_s);
}
