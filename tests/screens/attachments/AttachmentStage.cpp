#include "screens/attachments/AttachmentStage.h"

#include "screens/attachments/Samples.h"
#include "screens/attachments/section/FileImport.h"

#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QQmlContext>
#include <QStyleHints>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const auto StageKey = u"WEB-1"_s;

const auto Screen = u"import QtQuick\nimport Velmora.Attachments\nimport Velmora.State\n"
                    "FocusScope { id: screen; width: 600; height: 460; focus: true\n"
                    "property string issueKey: 'WEB-1'\n"
                    "property rect revealed\n"
                    "property AttachmentPreviewer previewer: AttachmentPreviewer { store: "
                    "appStore; key: screen.issueKey; window: screen.Window.window; "
                    "files: section.issueFiles.files }\n"
                    "property FileImport files: section.importer\n"
                    "AttachmentsSection { id: section; x: 20; y: 20; width: 444; store: appStore; "
                    "previewer: screen.previewer; issueKey: screen.issueKey; "
                    "onRevealRequested: box => screen.revealed = mapToItem(screen, box) }\n"
                    "AttachmentDropArea { anchors.fill: parent; files: section.issueFiles }\n"
                    "PreviewHost { previewer: screen.previewer } }"_s;

} // namespace

AttachmentStage::AttachmentStage()
{
    startSession();
}

AttachmentStage::~AttachmentStage()
{
    if (m_bench) {
        EXPECT_EQ(m_bench->warnings(), "");
    }
    m_bench.reset();
}

void AttachmentStage::open(const QList<Attachment> &attachments)
{
    Issue issue = sampleIssue(StageKey);
    issue.attachments = attachments;
    reloadWith({issue});
    service->downloadCalls.answerBy([this](const Attachment &attachment) {
        return QUrl::fromLocalFile(folder.filePath(attachment.id));
    });
    m_bench = std::make_unique<Bench>();
    window().resize(600, 460);
    window().setPosition(200, 160);
    m_bench->window().rootContext()->setContextProperty(u"appStore"_s, store.get());
    m_screen = m_bench->show(Screen);
    ASSERT_NE(m_screen, nullptr) << m_bench->warnings();
    m_previewer = m_screen->property("previewer").value<AttachmentPreviewer *>();
    m_previewer->setTools(fakes.tools());
    m_screen->property("files").value<FileImport *>()->setTools(fakes.tools());
}

void AttachmentStage::showIssue(const QString &key)
{
    m_screen->setProperty("issueKey", key);
}

Attachment AttachmentStage::cached(const QString &id, const QString &name, const QString &mimeType,
                                   const QByteArray &content) const
{
    QFile file(folder.filePath(id));
    EXPECT_TRUE(file.open(QFile::WriteOnly));
    file.write(content);
    Attachment attachment = AttachmentSamples::file(id, name, mimeType);
    attachment.size = content.size();
    return attachment;
}

void AttachmentStage::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&window(), key, modifiers);
}

void AttachmentStage::pressIn(QQuickWindow &other, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&other, key, modifiers);
}

void AttachmentStage::goToTiles()
{
    for (int i = 0; i < 5 && focusedTile().isEmpty(); ++i)
        press(Qt::Key_Tab);
    EXPECT_NE(focusedTile(), u""_s);
}

bool AttachmentStage::awaits(QAccessible::Role role, const QString &name)
{
    return QTest::qWaitFor([&] { return !spokenIn(window(), role, name).isEmpty(); });
}

bool AttachmentStage::awaitsNo(QAccessible::Role role, const QString &name)
{
    return QTest::qWaitFor([&] { return spokenIn(window(), role, name).isEmpty(); });
}

void AttachmentStage::click(QAccessible::Role role, const QString &name, Qt::MouseButton button)
{
    ASSERT_TRUE(awaits(role, name)) << name.toStdString();
    // New items have their final place once a frame was shown.
    window().grabWindow();
    const auto found = spokenIn(window(), role, name);
    ASSERT_EQ(found.size(), 1) << name.toStdString();
    QTest::mouseClick(&window(), button, {}, found.constFirst().box.center());
}

QString AttachmentStage::focusedTile()
{
    for (const Spoken &tile : spokenIn(window(), QAccessible::ListItem)) {
        if (tile.state.focused)
            return tile.name;
    }
    return {};
}

QStringList AttachmentStage::namesOf(QAccessible::Role role)
{
    QStringList names;
    for (const Spoken &thing : spokenIn(window(), role))
        names += thing.name;
    return names;
}

QQuickWindow *AttachmentStage::previewWindow()
{
    QQuickWindow *found = nullptr;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        for (QWindow *other : QGuiApplication::topLevelWindows()) {
            if (other != &window() && other->isVisible())
                found = qobject_cast<QQuickWindow *>(other);
        }
        return found != nullptr;
    }));
    if (found) {
        found->requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(found));
    }
    return found;
}

bool AttachmentStage::awaitsNoPreview()
{
    return QTest::qWaitFor([&] {
        return std::ranges::none_of(QGuiApplication::topLevelWindows(), [&](const QWindow *other) {
            return other != &window() && other->isVisible();
        });
    });
}

bool AttachmentStage::dragOver(const QList<QUrl> &addresses)
{
    QMimeData content;
    content.setUrls(addresses);
    QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &content, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window(), &enter);
    return enter.isAccepted();
}

bool AttachmentStage::drop(const QList<QUrl> &addresses)
{
    QMimeData content;
    content.setUrls(addresses);
    const QPoint at(300, 300);
    QDragEnterEvent enter(at, Qt::CopyAction, &content, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window(), &enter);
    QDropEvent event(at, Qt::CopyAction, &content, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window(), &event);
    return event.isAccepted();
}

std::chrono::milliseconds AttachmentStage::doubleClickTime() const
{
    return std::chrono::milliseconds(QGuiApplication::styleHints()->mouseDoubleClickInterval());
}
