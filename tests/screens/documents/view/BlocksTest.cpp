#include "screens/documents/view/DocumentBench.h"

using namespace Qt::StringLiterals;
using namespace SampleTrees;

namespace {

const QString wide = QString(400, u'x');

int inkedPixels(const QImage &picture)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixel(x, y) != picture.pixel(0, 0);
    }
    return count;
}

} // namespace

class DocumentBlocksInWindow : public DocumentWindow
{
protected:
    void wheel(QPointF at, QPoint angle, Qt::KeyboardModifiers modifiers = {}, QPoint pixels = {})
    {
        QWheelEvent event(at, bench.window().mapToGlobal(at), pixels, angle, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&bench.window(), &event);
    }
    QPointF middle(int text) { return reader->mapToScene(shape().origin(text) + QPointF(60, 8)); }
};

TEST_F(DocumentBlocksInWindow, EveryKindIsDrawnWithoutWarnings)
{
    const auto panel =
        with(ADF::container(u"panel", {paragraph(u"note"_s)}), u"panelType"_s, u"note");
    for (const auto &block :
         {paragraph(u"a"_s), heading(1, u"a"_s), bullets({u"a"_s}), code(u"a"_s),
          ADF::container(u"taskList", {task(u"a"_s, true), task(u"b"_s, false)}),
          ADF::container(u"blockquote", {paragraph(u"a"_s)}), panel, ADF::plain(u"rule"),
          ADF::container(u"table", {row(u"tableHeader", {u"a"_s}), row(u"tableCell", {u"b"_s})}),
          expand(u"Titre"_s, {paragraph(u"a"_s)}),
          ADF::container(u"inconnu", {paragraph(u"a"_s)})}) {
        show({block});
        EXPECT_GT(reader->implicitHeight(), 0) << block.type.toStdString();
        EXPECT_GT(inkedPixels(frame()), 4) << block.type.toStdString();
    }
    expectNoWarnings();
}

TEST_F(DocumentBlocksInWindow, AParagraphOfFourteenHasLinesOfNineteen)
{
    show({paragraph(u"une ligne"_s)});
    EXPECT_EQ(reader->implicitHeight(), 19);
    show({ADF::container(
        u"paragraph", {ADF::text(u"deux"_s), ADF::plain(u"hardBreak"), ADF::text(u"lignes"_s)})});
    EXPECT_EQ(reader->implicitHeight(), 38);
}

TEST_F(DocumentBlocksInWindow, ANarrowerViewIsHigher)
{
    show({paragraph(u"des mots "_s.repeated(40))});
    const double before = reader->implicitHeight();
    reader->setWidth(200);
    frame();
    EXPECT_GT(reader->implicitHeight(), 2 * before);
}

TEST_F(DocumentBlocksInWindow, TheLinesOfACellAreNoWiderThanItsColumn)
{
    const auto text = u"Des mots qui remplissent plus d'une ligne."_s;
    show({ADF::container(u"table", {row(u"tableCell", {text, text, text, text})})});
    const auto &edges = shape().columns(0);
    const auto boxes = shape().text(0).boxes(0, int(text.size()));
    EXPECT_GT(boxes.size(), 1);
    for (const auto &line : boxes)
        EXPECT_LE(line.right(), edges[1] - edges[0] - 2 * BlockMetrics::cellSidePadding);
}

TEST_F(DocumentBlocksInWindow, AShortCellHasTheLinesThatItsColumnGivesIt)
{
    const QStringList texts{u"court"_s, u"שלום עולם"_s, u"deux\nlignes "_s, u"fin שלום"_s};
    show({ADF::container(u"table", {row(u"tableCell", texts)})});
    const auto &edges = shape().columns(0);
    for (int i = 0; i < int(texts.size()); ++i) {
        TextShape alone(shape().blocks().texts[size_t(i)], shape().style(), shape().bodySize());
        alone.layOut(edges[size_t(i) + 1] - edges[size_t(i)] - 2 * BlockMetrics::cellSidePadding);
        const int length = int(texts[i].size());
        EXPECT_EQ(shape().text(i).boxes(0, length), alone.boxes(0, length)) << i;
        EXPECT_EQ(shape().text(i).height(), alone.height()) << i;
    }
}

TEST_F(DocumentBlocksInWindow, AnEmptyDocumentHasNoHeight)
{
    show({});
    EXPECT_EQ(reader->implicitHeight(), 0);
    press(Qt::Key_Tab);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    click({100, 22});
    expectNoWarnings();
}

TEST_F(DocumentBlocksInWindow, AnExpandIsOpenedAndClosedByAClick)
{
    show({expand(u"Journal"_s, {paragraph(u"caché"_s)}), paragraph(u"fin"_s)});
    const double closed = reader->implicitHeight();
    const auto header = middleOf(0, 0, 7);
    click(header);
    frame();
    EXPECT_EQ(reader->implicitHeight(), closed + 6 + 19);
    click(header);
    frame();
    EXPECT_EQ(reader->implicitHeight(), closed);
}

TEST_F(DocumentBlocksInWindow, AnExpandIsOpenedByReturnAndClosedBySpace)
{
    show({expand(u"Journal"_s, {paragraph(u"caché"_s)})});
    const double closed = reader->implicitHeight();
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    frame();
    EXPECT_GT(reader->implicitHeight(), closed);
    press(Qt::Key_Space);
    frame();
    EXPECT_EQ(reader->implicitHeight(), closed);
}

TEST_F(DocumentBlocksInWindow, AnOpenExpandStaysOpenWhenTheDocumentChangesAndNotWhenItsSubjectDoes)
{
    show({expand(u"Journal"_s, {paragraph(u"caché"_s)})});
    click(middleOf(0, 0, 7));
    reader->setNode(ADF::document({expand(u"Journal"_s, {paragraph(u"autre"_s)})}));
    frame();
    EXPECT_EQ(shape().blocks().texts.size(), 2U);
    reader->setSubject(u"MOB-2"_s);
    frame();
    EXPECT_EQ(shape().blocks().texts.size(), 1U);
}

TEST_F(DocumentBlocksInWindow, LongCodeScrollsSidewaysWithShiftAndTheWheel)
{
    show({code(wide)});
    wheel(middle(0), {0, -120}, Qt::ShiftModifier);
    EXPECT_EQ(shape().offset(0), 72);
    wheel(middle(0), {0, 120}, Qt::ShiftModifier);
    EXPECT_EQ(shape().offset(0), 0);
}

TEST_F(DocumentBlocksInWindow, LongCodeScrollsSidewaysWithATouchpad)
{
    show({code(wide)});
    wheel(middle(0), {-20, 0}, {}, {-30, 2});
    EXPECT_EQ(shape().offset(0), 30);
}

TEST_F(DocumentBlocksInWindow, ThePageTakesTheWheelOverCode)
{
    auto *root =
        bench.show(u"import Velmora.Documents\n"
                   "Item { Flickable { id: f; objectName: 'page'; width: 600; height: 400; "
                   "contentHeight: d.height\n"
                   "ADFContentView { id: d; objectName: 'document'; width: 500; "
                   "height: 2000 } }\n"
                   "Scrolling { view: f; ground: '#ffffff' } }"_s);
    bench.setToken("motion", "reduced", true);
    auto *page = root->findChild<QQuickItem *>(u"page"_s);
    reader = root->findChild<DocumentReader *>(u"document"_s);
    reader->setNode(ADF::document({code(wide)}));
    frame();
    wheel(middle(0), {0, -120});
    EXPECT_EQ(shape().offset(0), 0);
    EXPECT_GT(page->property("contentY").toDouble(), 0);
    expectNoWarnings();
}

TEST_F(DocumentBlocksInWindow, AWideBlockWithTheFocusScrollsWithTheArrows)
{
    show({code(wide)});
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_Right);
    EXPECT_EQ(shape().offset(0), 40);
    press(Qt::Key_End);
    EXPECT_EQ(shape().offset(0), shape().scroller(0).farthest());
    press(Qt::Key_Home);
    EXPECT_EQ(shape().offset(0), 0);
}

TEST_F(DocumentBlocksInWindow, AWideTableScrollsAndKeepsTheWidthOfThePage)
{
    QStringList texts;
    for (int i = 0; i < 12; ++i)
        texts.append(u"colonne %1"_s.arg(i));
    show({ADF::container(u"table", {row(u"tableHeader", texts)})});
    EXPECT_EQ(shape().scroller(0).viewport.width(), 500);
    EXPECT_GE(shape().scroller(0).contentWidth, 12 * 90);
    wheel(middle(0), {0, -120}, Qt::ShiftModifier);
    EXPECT_EQ(shape().offset(0), 72);
}

TEST_F(DocumentBlocksInWindow, ANarrowTableHasColumnsOfAtLeastNinety)
{
    show({ADF::container(u"table", {row(u"tableCell", {u"a"_s, u"b"_s})})});
    EXPECT_EQ(shape().columns(0), (std::vector<double>{0, 90, 180}));
}

TEST_F(DocumentBlocksInWindow, AChangeOfAppearanceIsDrawnAtOnce)
{
    show({heading(1, u"Titre"_s), code(u"code"_s)});
    const QImage light = frame();
    bench.setToken("theme", "dark", true);
    EXPECT_NE(frame(), light);
    bench.setToken("theme", "dark", false);
    EXPECT_EQ(frame(), light);
}

TEST_F(DocumentBlocksInWindow, ALargerTextIsHigherAtOnce)
{
    show({paragraph(u"des mots "_s.repeated(20))});
    const double height = reader->implicitHeight();
    for (const double scale : {2.0, 3.0}) {
        reader->style()->setTextScale(scale);
        frame();
        EXPECT_GT(reader->implicitHeight(), scale * height);
    }
    reader->style()->setTextScale(1);
    frame();
    EXPECT_EQ(reader->implicitHeight(), height);
}

TEST_F(DocumentBlocksInWindow, AMediaBlockIsAnItemOfTheCaller)
{
    const auto media = with(ADF::plain(u"media"), u"alt"_s, u"capture.png");
    show({paragraph(u"avant"_s), ADF::container(u"mediaSingle", {media}), paragraph(u"après"_s)},
         u"mediaDelegate: Component { Rectangle { required property mediaBlock block; objectName: "
         "block.fileNames[0]; implicitHeight: 120; color: 'red' } }"_s);
    auto *item = reader->media().item(0);
    ASSERT_NE(item, nullptr) << bench.warnings();
    EXPECT_EQ(item->objectName(), u"capture.png"_s);
    EXPECT_EQ(item->position(), QPointF(0, 29));
    EXPECT_EQ(item->size(), QSizeF(500, 120));
    EXPECT_EQ(reader->implicitHeight(), 19 + 10 + 120 + 10 + 19);
    item->setImplicitHeight(60);
    frame();
    EXPECT_EQ(reader->implicitHeight(), 19 + 10 + 60 + 10 + 19);
    expectNoWarnings();
}

TEST_F(DocumentBlocksInWindow, AMediaBlockInATableCellIsAnItemToo)
{
    const auto cell = ADF::container(u"tableCell", {ADF::plain(u"media")});
    show({ADF::container(u"table", {ADF::container(u"tableRow", {cell})}), paragraph(u"fin"_s)},
         u"mediaDelegate: Component { Rectangle { required property mediaBlock block; "
         "implicitHeight: 50 } }"_s);
    ASSERT_NE(reader->media().item(0), nullptr);
    EXPECT_EQ(reader->media().item(0)->y(), BlockMetrics::cellPadding);
    EXPECT_EQ(reader->implicitHeight(), 50 + 12 + 10 + 19);
}

TEST_F(DocumentBlocksInWindow, ATableThatIsALittleTooWideShrinksBeforeItScrolls)
{
    const QString text = u"une phrase assez longue pour une colonne large "_s.repeated(3);
    show({ADF::container(u"table", {row(u"tableCell", {text, text})})});
    EXPECT_EQ(shape().scroller(0).farthest(), 0);
    reader->setWidth(250);
    frame();
    EXPECT_EQ(shape().columns(0), (std::vector<double>{0, 150, 300}));
}

TEST_F(DocumentBlocksInWindow, AStatusStaysOnOneLine)
{
    const auto status = with(ADF::plain(u"status"), u"text"_s, u"en cours de relecture");
    show({ADF::container(u"paragraph", {ADF::text(u"mot "_s.repeated(15)), status})});
    reader->setWidth(400);
    frame();
    EXPECT_EQ(shape().text(0).boxes(61, 80).size(), 1);
}
