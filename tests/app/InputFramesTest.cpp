#include "app/InputFrames.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQuickWindow>
#include <qpa/qplatformwindow.h>

#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A window that counts its frames since it was shown. It changes when a key or a mouse button is pressed in it.
class CountingWindow : public QQuickWindow
{
public:
    CountingWindow()
    {
        resize(100, 100);
        connect(this, &QQuickWindow::frameSwapped, this, [this] { ++m_frames; });
        show();
        while (m_frames == 0)
            QCoreApplication::processEvents();
        // Showing the window may have requested a second frame.
        handle()->deliverUpdateRequest();
        m_frames = 0;
    }

    int frames() const { return m_frames; }
    /// What else changes when a key is pressed.
    std::function<void()> alsoPressed = [] {};

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Shift)
            return;
        update();
        alsoPressed();
    }
    void mousePressEvent(QMouseEvent *) override { update(); }

private:
    int m_frames = 0;
};

void press(QWindow &window, Qt::Key key = Qt::Key_J)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

/// Lets everything happen that does not wait for a time.
void handleEvents()
{
    for (int turn = 0; turn < 20; ++turn)
        QCoreApplication::processEvents();
}

} // namespace

// The delay of Qt is longer than this test, see `main`.
TEST(InputFrames, WithoutThemTheResponseWaits)
{
    CountingWindow window;
    press(window);
    handleEvents();
    EXPECT_EQ(0, window.frames());
}

TEST(InputFrames, APressedKeyIsDrawnAtOnce)
{
    const InputFrames frames;
    CountingWindow window;
    press(window);
    handleEvents();
    EXPECT_EQ(1, window.frames());
    press(window);
    handleEvents();
    EXPECT_EQ(2, window.frames());
}

TEST(InputFrames, APressedButtonIsDrawnAtOnce)
{
    const InputFrames frames;
    CountingWindow window;
    const QPointF place(5, 5);
    QMouseEvent event(QEvent::MouseButtonPress, place, place, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
    handleEvents();
    EXPECT_EQ(1, window.frames());
}

TEST(InputFrames, PressesThatWaitTogetherAreDrawnTogether)
{
    const InputFrames frames;
    CountingWindow window;
    press(window);
    press(window);
    handleEvents();
    EXPECT_EQ(1, window.frames());
}

TEST(InputFrames, APressWithoutAChangeDrawsNothing)
{
    const InputFrames frames;
    CountingWindow window;
    press(window, Qt::Key_Shift);
    handleEvents();
    EXPECT_EQ(0, window.frames());
}

TEST(InputFrames, AChangeWithoutAPressWaits)
{
    const InputFrames frames;
    CountingWindow window;
    window.update();
    handleEvents();
    EXPECT_EQ(0, window.frames());
}

TEST(InputFrames, AnotherWindowThatThePressChangesIsDrawnToo)
{
    const InputFrames frames;
    CountingWindow window;
    CountingWindow other;
    window.alsoPressed = [&] { other.update(); };
    press(window);
    handleEvents();
    EXPECT_EQ(1, window.frames());
    EXPECT_EQ(1, other.frames());
}

TEST(InputFrames, AWindowMayCloseBeforeItIsDrawn)
{
    const InputFrames frames;
    auto window = std::make_unique<CountingWindow>();
    press(*window);
    window.reset();
    handleEvents();
    CountingWindow next;
    press(next);
    next.destroy();
    handleEvents();
    EXPECT_EQ(0, next.frames());
}

TEST(InputFrames, OnlyAPlatformWithTheDelayNeedsThem)
{
    EXPECT_TRUE(InputFrames::isUsefulOn(u"xcb"_s));
    EXPECT_FALSE(InputFrames::isUsefulOn(u"wayland"_s));
    EXPECT_FALSE(InputFrames::isUsefulOn(u"cocoa"_s));
}

int main(int argc, char **argv)
{
    // Qt's delay, in milliseconds. It is read once, before the first frame.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "10000000");
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
