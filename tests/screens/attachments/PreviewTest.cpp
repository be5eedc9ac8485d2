#include "async/WorkThreads.h"
#include "platform/decoding/Decoders.h"
#include "platform/decoding/EndlessPdf.h"
#include "screens/attachments/AttachmentStage.h"
#include "screens/attachments/preview/PdfPage.h"
#include "screens/attachments/preview/PictureCanvas.h"
#include "screens/attachments/preview/PreviewPlace.h"
#include "screens/kit/images/SamplePictures.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QScreen>
#include <QTest>
#include <QThreadPool>

using namespace Qt::StringLiterals;

namespace {

/// A PDF whose first page is filled with red.
QByteArray pdf(int pages)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QBuffer::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&writer);
    painter.fillRect(painter.viewport(), Qt::red);
    for (int page = 1; page < pages; ++page)
        writer.newPage();
    painter.end();
    return bytes;
}

class PreviewTest : public AttachmentStage
{
protected:
    static constexpr std::chrono::milliseconds FrameTime{50};

    QQuickWindow *preview = nullptr;

    /// Previews the first of the files.
    void previewFirst(const QList<Attachment> &files)
    {
        open(files);
        bench().setToken("motion", "reduced", false);
        goToTiles();
        press(Qt::Key_Space);
        preview = previewWindow();
        ASSERT_NE(preview, nullptr);
    }
    bool says(QAccessible::Role role, const QString &text)
    {
        return QTest::qWaitFor([&] { return !spokenIn(*preview, role, text).isEmpty(); });
    }
    template <typename Item>
    Item *shownItem()
    {
        Item *found = nullptr;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            found = itemBelow<Item>(preview->contentItem());
            return found != nullptr;
        }));
        return found;
    }
    template <typename Item>
    static Item *itemBelow(QQuickItem *item)
    {
        if (auto *here = qobject_cast<Item *>(item))
            return here;
        for (auto *child : item->childItems()) {
            if (auto *found = itemBelow<Item>(child))
                return found;
        }
        return nullptr;
    }
    Attachment pictureFile(const QString &id, QSize size = {1600, 900})
    {
        return cached(id, id + u".png"_s, u"image/png"_s, SamplePictures::picture("png", size));
    }
    /// A picture of one pixel, red and green for 50 ms each.
    Attachment animation()
    {
        QByteArray gif = QByteArray::fromHex("47494638396101000100800000ff000000ff00");
        for (const char *code : {"024401", "024c01"})
            gif += QByteArray::fromHex("21f9040005000000"
                                       "2c00000000010001000002") +
                   QByteArray::fromHex(code) + QByteArray::fromHex("00");
        return cached(u"anim"_s, u"anim.gif"_s, u"image/gif"_s, gif + ';');
    }
    static QColor colourOf(const PictureCanvas &canvas)
    {
        const auto &levels = canvas.preview()->levels();
        return levels.isEmpty() ? QColor() : levels.first().pixelColor(0, 0);
    }
    Attachment textFile(const QString &id, const QByteArray &content)
    {
        return cached(id, id + u".log"_s, u"text/plain"_s, content);
    }
};

} // namespace

TEST_F(PreviewTest, APictureIsFittedIntoTheWindow)
{
    previewFirst({pictureFile(u"photo"_s)});
    auto *canvas = shownItem<PictureCanvas>();
    ASSERT_NE(canvas, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !canvas->preview()->size().isEmpty(); }));
    EXPECT_NEAR(canvas->zoom(), canvas->width() / 1600, 0.001);
    EXPECT_EQ(preview->grabWindow().pixelColor(preview->width() / 2, preview->height() / 2),
              QColor(Qt::red));
}

TEST_F(PreviewTest, ItOpensInTheMiddleOfTheWindow)
{
    previewFirst({textFile(u"journal"_s, "premier\n")});
    const QRect screen = window().screen()->availableGeometry();
    const QRect place = previewPlace({920, 700}, window().geometry(), screen);
    const QRect opened = preview->geometry();
    EXPECT_EQ(opened.size(), place.size());
    // The frame of the window needs some pixels at the edge of this small screen.
    EXPECT_LE((opened.topLeft() - place.topLeft()).manhattanLength(), 4);
    window().setPosition(window().position() + QPoint(40, 30));
    QCoreApplication::processEvents();
    EXPECT_EQ(preview->geometry(), opened) << "it does not follow the window";
}

TEST_F(PreviewTest, APictureIsZoomedAndMovedByKeysAndTheWheel)
{
    previewFirst({pictureFile(u"photo"_s)});
    auto *canvas = shownItem<PictureCanvas>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !canvas->preview()->size().isEmpty(); }));
    const double fitted = canvas->zoom();
    QTest::keyClick(preview, '+');
    EXPECT_GT(canvas->zoom(), fitted);
    QTest::keyClick(preview, Qt::Key_1);
    EXPECT_DOUBLE_EQ(canvas->zoom(), 1);
    pressIn(*preview, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(previewer().file().id(), u"photo"_s);
    QTest::keyClick(preview, Qt::Key_0);
    EXPECT_TRUE(canvas->isFitted());

    const QPointF middle(preview->width() / 2.0, preview->height() / 2.0);
    QWheelEvent wheel(middle, preview->mapToGlobal(middle), {}, {0, 120}, {}, {}, {}, false);
    QCoreApplication::sendEvent(preview, &wheel);
    EXPECT_GT(canvas->zoom(), fitted);
}

TEST_F(PreviewTest, AnAnimatedPictureMoves)
{
    previewFirst({animation()});
    auto *canvas = shownItem<PictureCanvas>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return colourOf(*canvas) == Qt::red; }));
    clock.advance(FrameTime);
    EXPECT_TRUE(QTest::qWaitFor([&] { return colourOf(*canvas) == Qt::green; }));
    clock.advance(FrameTime);
    EXPECT_TRUE(QTest::qWaitFor([&] { return colourOf(*canvas) == Qt::red; }));
}

TEST_F(PreviewTest, APictureThatIsTooLargeSaysSoAndCanBeOpened)
{
    previewFirst({cached(u"mur"_s, u"mur.png"_s, u"image/png"_s,
                         SamplePictures::pngClaiming({60'000, 60'000}))});
    EXPECT_TRUE(says(QAccessible::StaticText, u"trop grande pour être affichée"_s));
    pressIn(*preview, Qt::Key_Tab);
    EXPECT_TRUE(says(QAccessible::Button, u"Ouvrir"_s));
}

TEST_F(PreviewTest, ATextIsShownWithNumberedLines)
{
    previewFirst({textFile(u"journal"_s, "premier\nsecond\n")});
    EXPECT_TRUE(says(QAccessible::ListItem, u"second"_s));
    EXPECT_TRUE(spokenIn(*preview, QAccessible::StaticText, u"Seul le début"_s).isEmpty());
}

TEST_F(PreviewTest, ATextThatIsNoneShowsItsFacts)
{
    previewFirst({textFile(u"journal"_s, QByteArray("MZ\0\0", 4))});
    EXPECT_TRUE(says(QAccessible::StaticText, u"Ce fichier n'est pas du texte."_s));
}

TEST_F(PreviewTest, ALongTextTellsWhatIsLeftOut)
{
    previewFirst({textFile(u"journal"_s, QByteArray("ligne\n").repeated(30'000))});
    EXPECT_TRUE(says(QAccessible::StaticText,
                     u"Seul le début du fichier est affiché : il reste 60\u00A0Ko."_s));
}

TEST_F(PreviewTest, ThePagesOfAPdfAreDrawn)
{
    previewFirst({cached(u"doc"_s, u"doc.pdf"_s, u"application/pdf"_s, pdf(3))});
    auto *page = shownItem<PdfPage>();
    ASSERT_NE(page, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return page->isDrawn(); }));
    EXPECT_EQ(page->preview()->pageCount(), 3);
    EXPECT_NEAR(page->height() / page->width(), 1.414, 0.01);
    const QImage shown = preview->grabWindow();
    EXPECT_EQ(shown.pixelColor(preview->width() / 2, preview->height() / 2), QColor(Qt::red));
}

TEST_F(PreviewTest, ADamagedPdfSaysSo)
{
    previewFirst({cached(u"doc"_s, u"doc.pdf"_s, u"application/pdf"_s, "%PDF-1.4 rien")});
    EXPECT_TRUE(says(QAccessible::StaticText, u"Ce PDF est endommagé."_s));
}

TEST_F(PreviewTest, APageThatCannotBeDrawnSaysSo)
{
    previewFirst({cached(u"doc"_s, u"doc.pdf"_s, u"application/pdf"_s, endlessPdf())});
    auto *page = shownItem<PdfPage>();
    ASSERT_NE(page, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([] { return Decoders::shared().pendingCount() > 0; }));
    Decoders::shared().endHelpers();
    EXPECT_TRUE(says(QAccessible::StaticText, u"Cette page ne peut pas être affichée."_s));
    EXPECT_TRUE(spokenIn(*preview, QAccessible::Animation, u"Chargement"_s).isEmpty());
    preview->resize(preview->width() - 100, preview->height());
    preview->grabWindow();
    EXPECT_EQ(Decoders::shared().pendingCount(), 0) << "it is not drawn again";
}

TEST_F(PreviewTest, AnotherFileShowsItsFactsAndOpens)
{
    previewFirst({cached(u"archive"_s, u"archive.zip"_s, u"application/zip"_s, "PK")});
    EXPECT_TRUE(says(QAccessible::StaticText, u"2\u00A0octets"_s));
    const auto buttons = spokenIn(*preview, QAccessible::Button, u"Ouvrir"_s);
    ASSERT_FALSE(buttons.isEmpty());
    QTest::mouseClick(preview, Qt::LeftButton, {}, buttons.constLast().box.center());
    EXPECT_EQ(desktop.opened, QList<QUrl>{QUrl::fromLocalFile(folder.filePath(u"archive"_s))});
}

TEST_F(PreviewTest, TheArrowKeysGoThroughTheFilesOfTheIssue)
{
    previewFirst({pictureFile(u"photo"_s), textFile(u"journal"_s, "premier\n"),
                  cached(u"doc"_s, u"doc.pdf"_s, u"application/pdf"_s, pdf(1))});
    pressIn(*preview, Qt::Key_Right);
    EXPECT_EQ(preview->title(), u"journal.log"_s);
    EXPECT_TRUE(says(QAccessible::ListItem, u"premier"_s));
    pressIn(*preview, Qt::Key_Right);
    EXPECT_EQ(preview->title(), u"doc.pdf"_s);
    ASSERT_NE(shownItem<PdfPage>(), nullptr);
    pressIn(*preview, Qt::Key_Right);
    EXPECT_EQ(preview->title(), u"doc.pdf"_s);
    pressIn(*preview, Qt::Key_Left);
    pressIn(*preview, Qt::Key_Left);
    EXPECT_EQ(preview->title(), u"photo.png"_s);
    ASSERT_NE(shownItem<PictureCanvas>(), nullptr);
}

TEST_F(PreviewTest, TwoPicturesInARowBothAppear)
{
    previewFirst({pictureFile(u"grande"_s, {1600, 900}), pictureFile(u"petite"_s, {30, 20})});
    auto *canvas = shownItem<PictureCanvas>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return canvas->preview()->size() == QSize(1600, 900); }));
    pressIn(*preview, Qt::Key_Right);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        auto *now = itemBelow<PictureCanvas>(preview->contentItem());
        return now && now->preview()->size() == QSize(30, 20);
    }));
}

TEST_F(PreviewTest, EscapeCloses)
{
    previewFirst({textFile(u"journal"_s, "premier\n")});
    pressIn(*preview, Qt::Key_Escape);
    EXPECT_TRUE(awaitsNoPreview());
    EXPECT_EQ(previewer().url(), QUrl());
}

TEST_F(PreviewTest, ClosingTheWindowEndsThePreview)
{
    previewFirst({textFile(u"journal"_s, "premier\n")});
    preview->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return previewer().url().isEmpty(); }));
}

TEST_F(PreviewTest, AFileThatVanishesFromTheCacheIsTold)
{
    const Attachment file = textFile(u"journal"_s, "premier\n");
    QFile::remove(folder.filePath(u"journal"_s));
    previewFirst({file});
    EXPECT_TRUE(says(QAccessible::StaticText, u"Le fichier n'est plus là."_s));
}

TEST_F(PreviewTest, AFileDeletedWhileItIsPreviewedStaysUntilItIsShownAgain)
{
    previewFirst({textFile(u"journal"_s, "premier\n"), textFile(u"autre"_s, "second\n")});
    ASSERT_TRUE(says(QAccessible::ListItem, u"premier"_s));
    ASSERT_TRUE(QFile::remove(folder.filePath(u"journal"_s)));
    preview->resize(preview->width() + 40, preview->height());
    EXPECT_TRUE(says(QAccessible::ListItem, u"premier"_s));
    pressIn(*preview, Qt::Key_Right);
    ASSERT_TRUE(says(QAccessible::ListItem, u"second"_s));
    pressIn(*preview, Qt::Key_Left);
    EXPECT_TRUE(says(QAccessible::StaticText, u"Le fichier n'est plus là."_s));
}

TEST_F(PreviewTest, AnAnimationWhoseFileIsDeletedStopsAtItsLastFrame)
{
    previewFirst({animation()});
    auto *canvas = shownItem<PictureCanvas>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return colourOf(*canvas) == Qt::red; }));
    ASSERT_TRUE(QFile::remove(folder.filePath(u"anim"_s)));
    clock.advance(FrameTime);
    ASSERT_TRUE(QTest::qWaitFor([&] { return colourOf(*canvas) == Qt::green; }));
    const int timers = clock.pending();
    clock.advance(FrameTime);
    ASSERT_TRUE(QTest::qWaitFor([] { return Decoders::shared().pendingCount() == 0; }));
    // The end of the file is told, and the file is opened again on another thread.
    QCoreApplication::processEvents();
    ASSERT_TRUE(workThreads().waitForDone());
    QCoreApplication::processEvents();
    EXPECT_EQ(clock.pending(), timers - 1) << "no further frame is awaited";
    EXPECT_EQ(colourOf(*canvas), QColor(Qt::green));
    EXPECT_EQ(canvas->preview()->problem(), u""_s);
}

TEST_F(PreviewTest, ThePreviewMayCloseWhileAPdfIsBeingReadAndDrawn)
{
    const QList<Attachment> files{cached(u"doc"_s, u"doc.pdf"_s, u"application/pdf"_s, pdf(40)),
                                  cached(u"autre"_s, u"autre.pdf"_s, u"application/pdf"_s, pdf(2))};
    previewFirst(files);
    pressIn(*preview, Qt::Key_Right);
    ASSERT_NE(shownItem<PdfPage>(), nullptr);
    pressIn(*preview, Qt::Key_Left);
    pressIn(*preview, Qt::Key_Escape);
    EXPECT_TRUE(awaitsNoPreview());
}
