#include "async/WorkThreads.h"

#include <QImage>
#include <QPainter>
#include <QRadialGradient>
#include <QSemaphore>
#include <QThreadPool>

#include <atomic>
#include <gtest/gtest.h>

namespace {

/// Draws a shape so large that Qt divides it among the threads of its own pool.
void drawLargeShape()
{
    QImage picture(800, 800, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QRadialGradient colours(400, 400, 400);
    colours.setColorAt(0, Qt::red);
    colours.setColorAt(1, Qt::blue);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(colours);
    painter.drawEllipse(picture.rect());
    painter.end();
    EXPECT_EQ(picture.pixelColor(400, 400), QColor(Qt::red));
}

} // namespace

TEST(WorkThreads, DrawingDoesNotWaitForLongWork)
{
    QSemaphore isDrawn;
    std::atomic<int> waited = 0;
    for (int i = 0; i < workThreads().maxThreadCount(); ++i) {
        workThreads().start([&] {
            // Ends by itself, so that a failure of this test is told.
            waited += isDrawn.tryAcquire(1, 5'000);
        });
    }
    drawLargeShape();
    isDrawn.release(workThreads().maxThreadCount());
    workThreads().waitForDone();
    EXPECT_EQ(waited, workThreads().maxThreadCount());
}
