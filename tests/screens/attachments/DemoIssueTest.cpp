#include "app/Spoken.h"
#include "demo/DemoFiles.h"
#include "demo/DemoSamples.h"
#include "demo/DemoWiring.h"
#include "screens/Bench.h"
#include "screens/attachments/section/AttachmentPreviewer.h"
#include "screens/kit/images/ImageLoader.h"
#include "screens/kit/images/ScriptedFetcher.h"
#include "state/AppStoreFixture.h"

#include <QFile>
#include <QQmlContext>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const auto Key = u"SUP-41"_s;

const auto Screen = uR"(import QtQuick
import Velmora.Attachments
import Velmora.Documents
import Velmora.State
FocusScope {
    id: screen
    width: 500
    height: 900
    property AttachmentPreviewer previewer: AttachmentPreviewer { store: appStore; key: 'SUP-41' }
    property IssueFiles files: IssueFiles { store: appStore; key: 'SUP-41' }
    component Document: ADFContentView {
        width: 340
        height: implicitHeight
        mediaDelegate: Component {
            ADFMediaView {
                required property mediaBlock block
                node: block.node
                files: screen.files.files
                previewer: screen.previewer
            }
        }
    }
    Document { node: description; name: 'Description' }
    Document { y: 500; node: comment; name: 'Commentaire' }
    CommentAttachmentStrip {
        y: 840
        width: parent.width
        store: appStore
        issueKey: 'SUP-41'
        commentID: stripComment
        previewer: screen.previewer
    }
})"_s;

/// The issue of the demo whose texts refer to their files in every way, in a window.
class DemoIssue : public AppStoreFixture
{
protected:
    DemoIssue()
    {
        ImageLoader::shared().setFetcher(&fetcher);
        fetcher.calls.answerBy([](const ImageRequest &request) {
            QFile file(request.url.toLocalFile());
            EXPECT_TRUE(file.open(QFile::ReadOnly));
            return ImageAnswer{0, file.readAll()};
        });
        DemoSite site = DemoSite::from(testSeed());
        files = DemoFiles::seed(seededFolder(), testNow()).value(Key);
        DemoFiles::updateSizes(files);
        DemoWiring::attach(site, {{Key, files}}, countingIDs());
        Issue issue = *site.find(Key);
        issue.attachments = files;
        startSession();
        show(issue, site.threads.value(Key));
    }
    ~DemoIssue() override
    {
        EXPECT_EQ(bench.warnings(), "");
        ImageLoader::shared().setFetcher(nullptr);
    }

    void show(const Issue &issue, const QList<Comment> &comments)
    {
        reloadWith({issue});
        const TaskResult<void> loading(store->loadDetails(Key));
        service->issueCalls.last().finish(issue);
        service->commentsCalls.last().finish(comments);
        auto *context = bench.window().rootContext();
        context->setContextProperty(u"appStore"_s, store.get());
        context->setContextProperty(u"description"_s, QVariant::fromValue(*issue.description));
        context->setContextProperty(u"comment"_s, QVariant::fromValue(*comments.at(0).body));
        context->setContextProperty(u"stripComment"_s, comments.at(1).id);
        bench.window().resize(500, 900);
        QQuickItem *screen = bench.show(Screen);
        if (!screen)
            throw std::runtime_error(bench.warnings());
        previewer = screen->property("previewer").value<AttachmentPreviewer *>();
    }
    /// The buttons of files whose upper edge is between two heights, once there are any.
    QList<Spoken> buttonsBetween(int top, int bottom)
    {
        QList<Spoken> found;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            bench.window().grabWindow();
            found = spokenIn(bench.window(), QAccessible::Button);
            found.removeIf([&](const Spoken &button) {
                return button.box.top() < top || button.box.top() >= bottom;
            });
            return !found.isEmpty();
        }));
        return found;
    }

    QList<Attachment> files;
    ScriptedFetcher fetcher;
    Bench bench;
    AttachmentPreviewer *previewer = nullptr;
};

} // namespace

TEST_F(DemoIssue, ShowsAPictureInItsDescriptionByItsName)
{
    const auto buttons = buttonsBetween(0, 500);
    ASSERT_EQ(buttons.size(), 1);
    EXPECT_EQ(buttons[0].name, u"facture-septembre-erreur.png"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const QRect box = buttonsBetween(0, 500).value(0).box;
        // The picture has a banner in its accent colour.
        const QPoint banner(box.left() + box.width() * 6 / 10, box.top() + box.height() / 6);
        return bench.window().grabWindow().pixelColor(banner) == QColor(235, 82, 82);
    }));
}

TEST_F(DemoIssue, ShowsAPictureInItsFirstCommentByItsIdentifier)
{
    const auto buttons = buttonsBetween(500, 840);
    ASSERT_EQ(buttons.size(), 1);
    EXPECT_EQ(buttons[0].name, u"facture-septembre-erreur.png"_s);
}

TEST_F(DemoIssue, ListsTheLogUnderItsSecondComment)
{
    const auto buttons = buttonsBetween(840, 900);
    ASSERT_EQ(buttons.size(), 1);
    EXPECT_EQ(buttons[0].name, u"worker-facturation.log"_s);
    EXPECT_EQ(buttons[0].description, u"386\u00A0octets"_s);
}

TEST_F(DemoIssue, ItsPicturesAreReachedAndPreviewedByKey)
{
    service->downloadCalls.answerBy([](const Attachment &file) { return *file.contentURL; });
    ASSERT_EQ(buttonsBetween(0, 500).size(), 1);
    const auto isReached = [&] {
        const auto buttons = spokenIn(bench.window(), QAccessible::Button);
        return std::ranges::any_of(buttons, [](const Spoken &one) { return one.state.focused; });
    };
    for (int i = 0; i < 5 && !isReached(); ++i)
        QTest::keyClick(&bench.window(), Qt::Key_Tab);
    ASSERT_TRUE(isReached());
    QTest::keyClick(&bench.window(), Qt::Key_Space);
    EXPECT_TRUE(previewer->isPreviewing());
}
