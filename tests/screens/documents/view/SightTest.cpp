#include "screens/documents/content/RandomTree.h"
#include "screens/documents/view/DocumentBench.h"

using namespace Qt::StringLiterals;
using namespace SampleTrees;

namespace {

QList<ADFNode> many(int count)
{
    QList<ADFNode> blocks;
    for (int i = 0; i < count; ++i) {
        blocks.append(
            i % 7 == 0 ? heading(2, u"Titre %1"_s.arg(i))
                       : paragraph(u"Des mots qui remplissent une ligne. "_s.repeated(1 + i % 5)));
    }
    return blocks;
}

} // namespace

/// A document in a page that scrolls.
class DocumentSight : public DocumentWindow
{
protected:
    void open(const QList<ADFNode> &blocks)
    {
        auto *root = bench.show(
            u"import Velmora.Documents\n"
            "Flickable { objectName: 'page'; width: 600; height: 400; contentHeight: d.height\n"
            "ADFContentView { id: d; objectName: 'document'; width: 500; height: implicitHeight\n"
            "onShifted: distance => parent.parent.contentY += distance } }"_s);
        page = root;
        reader = root->findChild<DocumentReader *>(u"document"_s);
        reader->setNode(ADF::document(blocks));
        frame();
    }
    void waitUntilExact()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return reader->isExact(); }));
        frame();
    }
    int laidOut()
    {
        int count = 0;
        for (const auto &piece : shape().flow(0).pieces)
            count += piece.text != nullptr;
        return count;
    }
    int exact()
    {
        int count = 0;
        for (const auto &piece : shape().flow(0).pieces)
            count += piece.isExact;
        return count;
    }

    QQuickItem *page = nullptr;
};

TEST_F(DocumentSight, OnlyWhatIsInSightIsLaidOutAtOnce)
{
    open(many(2000));
    EXPECT_GT(exact(), 5);
    EXPECT_LT(exact(), 100);
}

TEST_F(DocumentSight, TheRestBecomesExactAndItsLinesAreFreed)
{
    open(many(300));
    waitUntilExact();
    EXPECT_EQ(exact(), 300);
    EXPECT_LT(laidOut(), 100);
}

TEST_F(DocumentSight, TheEstimateOfTheHeightIsNotFarOff)
{
    open(many(2000));
    const double estimate = reader->implicitHeight();
    waitUntilExact();
    EXPECT_NEAR(reader->implicitHeight() / estimate, 1, 0.25);
}

TEST_F(DocumentSight, WhatIsInSightStandsStillWhileTheHeightsAboveBecomeExact)
{
    open(many(600));
    page->setProperty("contentY", 8000);
    frame();
    const double top = page->property("contentY").toDouble();
    const int piece = shape().pieceAt(0, top);
    const double place = shape().flow(0).pieces[size_t(piece)].y - top;
    waitUntilExact();
    EXPECT_NEAR(shape().flow(0).pieces[size_t(piece)].y - page->property("contentY").toDouble(),
                place, 1);
}

TEST_F(DocumentSight, ScrollingShowsWhatComesIntoSight)
{
    open(many(300));
    const QImage top = frame();
    page->setProperty("contentY", 3000);
    const QImage below = frame();
    EXPECT_NE(below, top);
    page->setProperty("contentY", 0);
    EXPECT_EQ(frame(), top);
}

TEST_F(DocumentSight, ACellOutOfSightHasLinesAsWideAsItsColumn)
{
    const auto cell = row(u"tableCell", {u"une cellule de plusieurs mots"_s});
    const auto inner = ADF::container(u"table", {cell});
    const auto outer = ADF::container(
        u"table", {ADF::container(u"tableRow", {ADF::container(u"tableCell", {inner})}), cell});
    open(many(100) << outer);
    const auto count = int(shape().blocks().texts.size());
    EXPECT_EQ(shape().text(count - 2).layout().lineCount(), 1) << "of a table in a cell";
    EXPECT_EQ(shape().text(count - 1).layout().lineCount(), 1);
}

TEST_F(DocumentSight, AHiddenDocumentIsNotLaidOut)
{
    show(many(20), u"visible: false"_s);
    EXPECT_TRUE(!reader->shape() || !reader->shape()->flow(0).pieces[0].text);
}

TEST_F(DocumentSight, RandomTreesAreShownWithoutWarnings)
{
    show({});
    for (unsigned seed = 1; seed <= 60; ++seed) {
        reader->setNode(RandomTree(seed).document(6));
        frame();
        for (int expand = 0; expand < int(shape().blocks().expands.size()) && expand < 3; ++expand)
            reader->toggleExpand(expand), frame();
        for (int i = 0; i < 6; ++i)
            press(Qt::Key_Tab);
        drag({30, 30}, {400, 300});
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_C, Qt::ControlModifier);
        press(Qt::Key_Down, Qt::ShiftModifier);
        press(Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier);
    }
    expectNoWarnings();
}

TEST_F(DocumentSight, DeepNestingIsShown)
{
    ADFNode node = paragraph(u"fond"_s);
    for (int i = 0; i < 1000; ++i)
        node = ADF::container(i % 2 ? u"blockquote" : u"panel", {node});
    show({node});
    EXPECT_GT(reader->implicitHeight(), 0);
    expectNoWarnings();
}

TEST_F(DocumentSight, TablesInTablesAreShown)
{
    ADFNode node = paragraph(u"fond"_s);
    for (int i = 0; i < 20; ++i) {
        const auto cell = ADF::container(u"tableCell", {node});
        node = ADF::container(u"table", {ADF::container(u"tableRow", {cell})});
    }
    show({node});
    EXPECT_GT(reader->implicitHeight(), 19);
    expectNoWarnings();
}

TEST_F(DocumentSight, AMegabyteInOneTextIsShownInParts)
{
    open({paragraph(u"mot "_s.repeated(262144))});
    EXPECT_LT(exact(), 20);
    EXPECT_GT(shape().blocks().texts.size(), 200U);
    expectNoWarnings();
}

TEST_F(DocumentSight, TenThousandBlocksAreShown)
{
    open(many(10000));
    EXPECT_LT(exact(), 100);
    expectNoWarnings();
}
