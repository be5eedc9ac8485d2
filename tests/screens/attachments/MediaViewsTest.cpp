#include "screens/attachments/AttachmentStage.h"
#include "screens/attachments/Samples.h"
#include "screens/attachments/media/MediaFiles.h"
#include "screens/kit/images/ImageLoader.h"
#include "screens/kit/images/SamplePictures.h"
#include "screens/kit/images/ScriptedFetcher.h"

#include <QQmlContext>
#include <QTest>

using namespace AttachmentSamples;
using namespace Qt::StringLiterals;

namespace {

class MediaViewsTest : public AppStoreFixture
{
protected:
    MediaViewsTest()
    {
        ImageLoader::shared().setFetcher(&fetcher);
        fetcher.calls.answerWith({200, SamplePictures::picture("png", {1200, 600}, Qt::green)});
        startSession();
        service->downloadCalls.answerWith(QUrl::fromLocalFile(u"/cache/x"_s));
    }
    ~MediaViewsTest() override
    {
        EXPECT_EQ(bench.warnings(), "");
        ImageLoader::shared().setFetcher(nullptr);
    }

    /// Shows a node of a document over these attachments, 700 wide.
    QQuickItem *showNode(const ADFNode &node, QList<Attachment> attachments)
    {
        QList<AttachmentFile> files;
        for (Attachment &attachment : attachments) {
            attachment.thumbnailURL = QUrl(u"https://site.example/"_s + attachment.id);
            files.append({attachment});
        }
        auto *context = bench.window().rootContext();
        context->setContextProperty(u"appStore"_s, store.get());
        context->setContextProperty(u"shownFiles"_s, QVariant::fromValue(files));
        context->setContextProperty(u"shownNode"_s, QVariant::fromValue(node));
        auto *screen = bench.show(
            u"import Velmora.Attachments\nFocusScope { width: 700; height: 380; focus: true\n"
            "property AttachmentPreviewer previewer: AttachmentPreviewer { store: appStore }\n"
            "property alias view: media\n"
            "ADFMediaView { id: media; width: 700; previewer: parent.previewer; files: shownFiles; "
            "node: shownNode } }"_s);
        EXPECT_NE(screen, nullptr) << bench.warnings();
        previewer = screen->property("previewer").value<AttachmentPreviewer *>();
        return screen->property("view").value<QQuickItem *>();
    }
    QList<Spoken> spoken(QAccessible::Role role) { return spokenIn(bench.window(), role); }

    ScriptedFetcher fetcher;
    Bench bench;
    AttachmentPreviewer *previewer = nullptr;
};

} // namespace

TEST_F(MediaViewsTest, APictureIsAButtonAtMost560WideAnd340High)
{
    auto *view = showNode(mediaWithID(u"1"_s), {picture(u"1"_s, u"a.png"_s)});
    ASSERT_TRUE(QTest::qWaitFor([&] { return view->height() == 280; })) << view->height();
    ASSERT_EQ(spoken(QAccessible::Button).size(), 1);
    EXPECT_EQ(spoken(QAccessible::Button)[0].name, u"a.png"_s);
    EXPECT_EQ(spoken(QAccessible::Button)[0].box.size(), QSize(560, 280));
}

TEST_F(MediaViewsTest, ATallPictureIsLimitedByItsHeight)
{
    fetcher.calls.answerWith({200, SamplePictures::picture("png", {300, 1200}, Qt::green)});
    auto *view = showNode(mediaWithID(u"1"_s), {picture(u"1"_s, u"a.png"_s)});
    ASSERT_TRUE(QTest::qWaitFor([&] { return view->height() == 340; })) << view->height();
    EXPECT_EQ(spoken(QAccessible::Button)[0].box.width(), 85);
}

TEST_F(MediaViewsTest, APressPreviewsThePicture)
{
    showNode(mediaWithID(u"1"_s), {picture(u"1"_s, u"a.png"_s)});
    QTest::keyClick(&bench.window(), Qt::Key_Tab);
    QTest::keyClick(&bench.window(), Qt::Key_Space);
    EXPECT_EQ(previewer->file().id(), u"1"_s);
}

TEST_F(MediaViewsTest, AnotherFileIsAButtonWithItsName)
{
    showNode(mediaWithAlt(u"A.LOG"_s), {file(u"1"_s, u"a.log"_s)});
    ASSERT_EQ(spoken(QAccessible::Button).size(), 1);
    EXPECT_EQ(spoken(QAccessible::Button)[0].name, u"a.log"_s);
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, {20, 10});
    EXPECT_EQ(previewer->file().id(), u"1"_s);
    EXPECT_EQ(fetcher.calls.count(), 0);
}

TEST_F(MediaViewsTest, AStaleReferenceDoesNotVanish)
{
    auto *view = showNode(mediaWithID(u"404"_s), {picture(u"1"_s, u"a.png"_s)});
    EXPECT_GT(view->height(), 20);
    EXPECT_TRUE(spoken(QAccessible::Button).isEmpty());
    const auto texts =
        spokenIn(bench.window(), QAccessible::StaticText, u"Pièce jointe (à ouvrir dans Jira)"_s);
    ASSERT_EQ(texts.size(), 1);
    EXPECT_GT(texts[0].box.width(), 220) << "the whole sentence is in sight";
}

TEST_F(MediaViewsTest, AStaleReferenceInANarrowTextStaysWithinIt)
{
    auto *view = showNode(mediaWithID(u"404"_s), {});
    view->setWidth(120);
    const auto texts = spokenIn(bench.window(), QAccessible::StaticText, u"Pièce jointe"_s);
    ASSERT_EQ(texts.size(), 1);
    EXPECT_EQ(texts[0].box.width(), 120);
}

TEST_F(MediaViewsTest, TheMediaOfAGroupStandBelowEachOther)
{
    const ADFNode group{.type = u"mediaGroup"_s,
                        .content = QList<ADFNode>{mediaWithID(u"1"_s), mediaWithID(u"2"_s)}};
    showNode(group, {file(u"1"_s, u"a.log"_s), file(u"2"_s, u"b.log"_s)});
    bench.window().grabWindow();
    const auto buttons = spoken(QAccessible::Button);
    ASSERT_EQ(buttons.size(), 2);
    EXPECT_EQ(buttons[1].box.top() - buttons[0].box.bottom() - 1, 8);
}
