#include "screens/attachments/facts/AttachmentFile.h"

#include "screens/attachments/Samples.h"
#include "screens/attachments/facts/ShownName.h"

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

TEST(AttachmentFile, ATrickInTheNameOfItsAuthorIsVisible)
{
    Attachment attachment = file(u"1"_s, u"a.log"_s);
    attachment.author = JiraUser{.id = u"u"_s, .name = u"Elsa\u202E\nibuoraK"_s};
    EXPECT_EQ(AttachmentFile{attachment}.tileHint(),
              u"a.log\nElsa\uFFFD\uFFFDibuoraK · clic : aperçu, double-clic : ouvrir"_s);
}

TEST(ShownName, ATrickWithTheDirectionOfWritingIsVisible)
{
    EXPECT_EQ(shownName(u"facture\u202Egpj.exe"_s), u"facture\uFFFDgpj.exe"_s);
    EXPECT_EQ(shownName(u"a\u2066b\u200Fc"_s), u"a\uFFFDb\uFFFDc"_s);
}

TEST(ShownName, ControlCharactersAndLineBreaksAreVisibleAndLeaveOneLine)
{
    EXPECT_EQ(shownName(u"a\nb\tc\u0000d\u2028e\u0085f"_s),
              u"a\uFFFDb\uFFFDc\uFFFDd\uFFFDe\uFFFDf"_s);
}

TEST(ShownName, NamesOfAllScriptsStayAsTheyAre)
{
    const QString family = QString::fromUtf8("👩‍👧 été — תמונה.png");
    EXPECT_EQ(shownName(family), family);
}
