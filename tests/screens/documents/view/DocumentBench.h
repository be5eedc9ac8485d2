#pragma once

#include "screens/Bench.h"
#include "screens/documents/SampleTrees.h"
#include "screens/documents/view/DocumentReader.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

/// A window of 600 by 400 with one document 500 wide, 20 from its edges.
class DocumentWindow : public testing::Test
{
protected:
    /// Shows a document of these blocks. `more` is added to the view's properties.
    DocumentReader &show(const QList<ADFNode> &blocks, const QString &more = {})
    {
        auto *root = bench.show(
            QStringLiteral(
                "import Velmora.Documents\n"
                "Item { width: 600; height: 400\n"
                "ADFContentView { objectName: 'document'; x: 20; y: 20; width: 500; "
                "height: implicitHeight; name: 'Description'; localeName: 'fr_FR'; %1 } }")
                .arg(more));
        EXPECT_NE(root, nullptr) << bench.warnings();
        reader = root ? root->findChild<DocumentReader *>(QStringLiteral("document")) : nullptr;
        if (!reader)
            throw std::runtime_error("no document");
        reader->setNode(ADF::document(blocks));
        frame();
        return *reader;
    }
    /// Draws a frame, for which the document is laid out.
    QImage frame() { return bench.window().grabWindow().convertToFormat(QImage::Format_RGB32); }
    DocumentShape &shape() { return *reader->shape(); }
    /// The middle of a part of a text, in the coordinates of the window.
    QPoint middleOf(int text, int start, int end)
    {
        const auto boxes = shape().text(text).boxes(start, end);
        const QPointF at = boxes.value(0).center() + shape().origin(text);
        return reader->mapToScene(at).toPoint();
    }
    /// Just right of the left edge of a character.
    QPoint before(int text, int offset)
    {
        const QRectF caret = shape().text(text).caret(offset);
        return reader->mapToScene(caret.center() + shape().origin(text)).toPoint() + QPoint(1, 0);
    }
    void click(QPoint at) { QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, at); }
    void drag(QPoint from, QPoint to)
    {
        QTest::mousePress(&bench.window(), Qt::LeftButton, {}, from);
        QTest::mouseMove(&bench.window(), (from + to) / 2);
        QTest::mouseMove(&bench.window(), to);
        QTest::mouseRelease(&bench.window(), Qt::LeftButton, {}, to);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&bench.window(), Qt::Key(key), modifiers);
    }
    void expectNoWarnings() { EXPECT_EQ(bench.warnings(), ""); }

    Bench bench;
    DocumentReader *reader = nullptr;
};
