#include "screens/documents/view/DocumentBench.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

using namespace Qt::StringLiterals;
using namespace SampleTrees;

namespace {

const QMimeData &clipboard()
{
    return *QGuiApplication::clipboard()->mimeData();
}

} // namespace

using DocumentSelection = DocumentWindow;

TEST_F(DocumentSelection, ADragSelectsAcrossBlocks)
{
    show({paragraph(u"premier bloc"_s), bullets({u"deuxième"_s}), paragraph(u"troisième bloc"_s)});
    drag(before(0, 8), before(2, 9));
    EXPECT_EQ(reader->selectedText(), u"bloc\ndeuxième\ntroisième"_s);
    expectNoWarnings();
}

TEST_F(DocumentSelection, ADragUpwardsSelectsToo)
{
    show({paragraph(u"premier bloc"_s), paragraph(u"troisième bloc"_s)});
    drag(before(1, 9), before(0, 8));
    EXPECT_EQ(reader->selectedText(), u"bloc\ntroisième"_s);
}

TEST_F(DocumentSelection, ADragThroughATableSelectsItsCells)
{
    show({ADF::container(u"table", {row(u"tableHeader", {u"Nom"_s, u"État"_s}),
                                    row(u"tableCell", {u"a"_s, u"b"_s})})});
    drag(before(0, 0), before(3, 0));
    EXPECT_EQ(reader->selectedText(), u"Nom\tÉtat\na\t"_s);
}

TEST_F(DocumentSelection, ADoubleClickSelectsAWordAndATripleClickABlock)
{
    show({paragraph(u"un deux trois"_s), paragraph(u"fin"_s)});
    const QPointF at = middleOf(0, 3, 7);
    // The times of QTest's own clicks are too far apart for a triple click.
    const auto send = [&](QEvent::Type type, quint64 time) {
        const bool isDown = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, bench.window().mapToGlobal(at), Qt::LeftButton,
                          isDown ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(&bench.window(), &event);
    };
    send(QEvent::MouseButtonPress, 10000);
    send(QEvent::MouseButtonRelease, 10020);
    send(QEvent::MouseButtonPress, 10100);
    send(QEvent::MouseButtonDblClick, 10100);
    send(QEvent::MouseButtonRelease, 10120);
    EXPECT_EQ(reader->selectedText(), u"deux"_s);
    send(QEvent::MouseButtonPress, 10200);
    send(QEvent::MouseButtonRelease, 10220);
    EXPECT_EQ(reader->selectedText(), u"un deux trois"_s);
}

TEST_F(DocumentSelection, AShiftClickExtendsTheSelection)
{
    show({paragraph(u"un deux trois"_s)});
    click(before(0, 3));
    QTest::mouseClick(&bench.window(), Qt::LeftButton, Qt::ShiftModifier, before(0, 7));
    EXPECT_EQ(reader->selectedText(), u"deux"_s);
}

TEST_F(DocumentSelection, AClickEndsIt)
{
    show({paragraph(u"un deux"_s)});
    drag(before(0, 0), before(0, 3));
    // Later than a double click.
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, before(0, 6), 1000);
    EXPECT_EQ(reader->selectedText(), QString());
}

TEST_F(DocumentSelection, CtrlASelectsTheFocusedDocumentAndCtrlCCopiesTextAndHtml)
{
    const auto bold = ADF::text(u"gras"_s, {{u"strong"_s, {}}});
    show({heading(1, u"Titre"_s), ADF::container(u"paragraph", {ADF::text(u"un "_s), bold}),
          bullets({u"a & b"_s}), code(u"x\ny"_s)});
    click(before(1, 1));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard().text(), u"Titre\nun gras\na & b\nx\ny"_s);
    EXPECT_EQ(clipboard().html(),
              u"<h1>Titre</h1><p>un <b>gras</b></p><ul><li><p>a &amp; b</p></li></ul>"
              "<div><pre>x\ny</pre></div>"_s);
}

TEST_F(DocumentSelection, CtrlCWithoutSelectionLeavesTheClipboardAlone)
{
    QGuiApplication::clipboard()->setText(u"avant"_s);
    show({paragraph(u"texte"_s)});
    click(before(0, 1));
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard().text(), u"avant"_s);
}

TEST_F(DocumentSelection, ShiftAndTheArrowsSelectAcrossBlocks)
{
    show({paragraph(u"ab"_s), paragraph(u"cd"_s)});
    click(before(0, 1));
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(reader->selectedText(), u"b\nc"_s);
    press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(reader->selectedText(), u"b\n"_s);
    press(Qt::Key_End, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(reader->selectedText(), u"b\ncd"_s);
    press(Qt::Key_Home, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(reader->selectedText(), u"a"_s);
}

TEST_F(DocumentSelection, ShiftDownSelectsToTheLineBelow)
{
    show({paragraph(u"abcd"_s), paragraph(u"efgh"_s), paragraph(u"ijkl"_s)});
    click(before(0, 2));
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(reader->selectedText(), u"cd\nef"_s);
    press(Qt::Key_Up, Qt::ShiftModifier);
    press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(reader->selectedText(), u"ab"_s);
}

TEST_F(DocumentSelection, CtrlShiftRightSelectsAWord)
{
    show({paragraph(u"un deux"_s)});
    click(before(0, 0));
    press(Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(reader->selectedText(), u"un "_s);
}

TEST_F(DocumentSelection, IsDrawn)
{
    show({paragraph(u"un deux"_s)});
    const QImage plain = frame();
    click(before(0, 0));
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_NE(frame(), plain);
    reader->clearSelection();
    EXPECT_EQ(frame(), plain);
}

TEST_F(DocumentSelection, IsLostWithTheDocument)
{
    show({paragraph(u"un deux"_s)});
    reader->selectAll();
    reader->setNode(ADF::document({paragraph(u"x"_s)}));
    frame();
    EXPECT_EQ(reader->selectedText(), QString());
}

TEST_F(DocumentSelection, IsClearedWhenAnotherItemTakesTheFocus)
{
    show({paragraph(u"un deux"_s)}, u"Item { objectName: 'other'; focus: true }"_s);
    click(before(0, 0));
    press(Qt::Key_A, Qt::ControlModifier);
    reader->findChild<QQuickItem *>(u"other"_s)->forceActiveFocus();
    EXPECT_EQ(reader->selectedText(), QString());
}

TEST_F(DocumentSelection, ADragOutOfTheWindowAsksToSeeWhereItIs)
{
    show(QList<ADFNode>(60, paragraph(u"texte"_s)));
    const QSignalSpy revealed(reader, &DocumentReader::revealRequested);
    QTest::mousePress(&bench.window(), Qt::LeftButton, {}, before(0, 0));
    QTest::mouseMove(&bench.window(), {100, 300});
    EXPECT_EQ(revealed.size(), 0);
    QTest::mouseMove(&bench.window(), {100, 450});
    ASSERT_EQ(revealed.size(), 1);
    EXPECT_GT(revealed[0][0].toRectF().bottom(), 400);
    QTest::mouseRelease(&bench.window(), Qt::LeftButton, {}, {100, 450});
}

TEST_F(DocumentSelection, AFingerSelectsNothing)
{
    show({paragraph(u"un deux trois"_s)});
    const std::unique_ptr<QPointingDevice> finger(QTest::createTouchDevice());
    QTest::touchEvent(&bench.window(), finger.get()).press(0, before(0, 0));
    QTest::touchEvent(&bench.window(), finger.get()).move(0, before(0, 7));
    QTest::touchEvent(&bench.window(), finger.get()).release(0, before(0, 7));
    EXPECT_EQ(reader->selectedText(), QString());
}
