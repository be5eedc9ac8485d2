#pragma once

#include "app/Spoken.h"
#include "screens/Bench.h"
#include "screens/attachments/FakeFileTools.h"
#include "screens/attachments/section/AttachmentPreviewer.h"
#include "state/AppStoreFixture.h"

#include <QQuickWindow>

/// The section of an issue's files in a window, over a store whose service the test controls. The test fails on any QML
/// warning.
class AttachmentStage : public AppStoreFixture
{
protected:
    AttachmentStage();
    ~AttachmentStage() override;

    /// Shows the files of the issue WEB-1. Each file is in the local cache at once, under `folder`.
    void open(const QList<Attachment> &attachments);
    /// Shows the files of another issue, which has none.
    void showIssue(const QString &key);
    /// Adds a file to the cache and returns its attachment.
    Attachment cached(const QString &id, const QString &name, const QString &mimeType,
                      const QByteArray &content) const;

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void pressIn(QQuickWindow &other, Qt::Key key,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Moves the focus to the tiles with the tab key.
    void goToTiles();
    /// Clicks the only element of the role whose name contains the text, once it exists.
    void click(QAccessible::Role role, const QString &name,
               Qt::MouseButton button = Qt::LeftButton);
    bool awaits(QAccessible::Role role, const QString &name);
    bool awaitsNo(QAccessible::Role role, const QString &name);
    /// The name of the tile with the focus; empty without one.
    QString focusedTile();
    /// What the section has asked to be in sight last, in the coordinates of the window.
    QRect revealed() const { return m_screen->property("revealed").toRectF().toRect(); }
    QStringList namesOf(QAccessible::Role role);
    /// The window of the preview, once it is shown. Null if it does not appear.
    QQuickWindow *previewWindow();
    bool awaitsNoPreview();
    /// Drops addresses on the middle of the screen. True if they were accepted.
    bool drop(const QList<QUrl> &addresses);
    bool dragOver(const QList<QUrl> &addresses);

    QQuickWindow &window() { return m_bench->window(); }
    Bench &bench() { return *m_bench; }
    AttachmentPreviewer &previewer() { return *m_previewer; }
    std::chrono::milliseconds doubleClickTime() const;

    FakeFileTools fakes;

private:
    std::unique_ptr<Bench> m_bench;
    QQuickItem *m_screen = nullptr;
    AttachmentPreviewer *m_previewer = nullptr;
};
