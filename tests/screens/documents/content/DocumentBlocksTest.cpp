#include "screens/documents/content/DocumentBlocks.h"

#include "richtext/ADFNodes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Role = TextBlock::Role;

namespace {

ADFNode with(ADFNode node, const QString &name, const JSONValue &value)
{
    node.attrs = node.attrs.value_or(ADFAttributes());
    node.attrs->insert(name, value);
    return node;
}

ADFNode paragraph(const QString &text)
{
    return ADF::container(u"paragraph", {ADF::text(text)});
}

ADFNode heading(const JSONValue &level)
{
    return with(ADF::container(u"heading", {ADF::text(u"Titre"_s)}), u"level"_s, level);
}

DocumentBlocks blocksOf(const QList<ADFNode> &nodes, const QSet<ExpandKey> &open = {})
{
    return DocumentBlocks::of(ADF::document(nodes), {.open = open});
}

QString textOf(const TextBlock &block)
{
    return ADFInline::plainText(block.runs);
}

QStringList textsOf(const DocumentBlocks &blocks)
{
    QStringList texts;
    for (const auto &text : blocks.texts)
        texts.append(textOf(text));
    return texts;
}

const Frame &frame(const DocumentBlocks &blocks, Frame::Kind kind)
{
    for (const auto &each : blocks.flows[0].frames) {
        if (each.kind == kind)
            return each;
    }
    throw std::runtime_error("no such frame");
}

QStringList markersOf(const DocumentBlocks &blocks)
{
    QStringList markers;
    for (const auto &each : blocks.flows[0].frames) {
        if (each.kind == Frame::Kind::Item)
            markers.append(each.marker);
    }
    return markers;
}

ADFNode listOf(QStringView type, int count)
{
    QList<ADFNode> items;
    for (int i = 0; i < count; ++i)
        items.append(ADF::container(u"listItem", {paragraph(QString::number(i))}));
    return ADF::container(type, items);
}

ADFNode cell(QStringView type, const QString &text)
{
    return ADF::container(type, {paragraph(text)});
}

} // namespace

TEST(DocumentBlocks, ParagraphsStandBelowEachOtherWithTheGivenSpacing)
{
    const auto blocks =
        DocumentBlocks::of(ADF::document({paragraph(u"a"_s), paragraph(u"b"_s)}), {.spacing = 7});
    EXPECT_EQ(textsOf(blocks), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(blocks.texts[0].role, Role::Body);
    EXPECT_EQ(blocks.flows[0].pieces[0].gap, 0);
    EXPECT_EQ(blocks.flows[0].pieces[1].gap, 7);
}

TEST(DocumentBlocks, HeadingsHaveThreeSizes)
{
    const auto blocks = blocksOf({heading(1), heading(2), heading(3), heading(6), heading(u"1")});
    const Role roles[]{Role::Heading1, Role::Heading2, Role::Heading3, Role::Heading3,
                       Role::Heading1};
    for (size_t i = 0; i < std::size(roles); ++i)
        EXPECT_EQ(blocks.texts[i].role, roles[i]) << i;
}

TEST(DocumentBlocks, AHeadingWithoutReadableLevelCountsAsTheSecond)
{
    const auto blocks = blocksOf({ADF::container(u"heading", {}), heading(true), heading(u"deux")});
    for (const auto &text : blocks.texts)
        EXPECT_EQ(text.role, Role::Heading2);
}

TEST(DocumentBlocks, ABulletListHasABulletForEachItem)
{
    EXPECT_EQ(markersOf(blocksOf({listOf(u"bulletList", 2)})), (QStringList{u"•"_s, u"•"_s}));
}

TEST(DocumentBlocks, AnOrderedListCountsFromItsOrder)
{
    EXPECT_EQ(markersOf(blocksOf({with(listOf(u"orderedList", 2), u"order"_s, u"9")})),
              (QStringList{u"9."_s, u"10."_s}));
}

TEST(DocumentBlocks, AnOrderedListWithoutReadableOrderCountsFromOne)
{
    const QStringList expected{u"1."_s, u"2."_s};
    EXPECT_EQ(markersOf(blocksOf({listOf(u"orderedList", 2)})), expected);
    EXPECT_EQ(markersOf(blocksOf({with(listOf(u"orderedList", 2), u"order"_s, u"x")})), expected);
}

TEST(DocumentBlocks, ItemsOfAListAreFivePointsApart)
{
    const auto blocks = blocksOf({listOf(u"bulletList", 2)});
    EXPECT_EQ(blocks.flows[0].pieces[1].gap, 5);
}

TEST(DocumentBlocks, MarkersHaveAMinimumWidth)
{
    const auto left = [](const ADFNode &list) { return blocksOf({list}).flows[0].pieces[0].left; };
    EXPECT_EQ(left(listOf(u"bulletList", 1)), 10 + BlockMetrics::markerGap);
    EXPECT_EQ(left(listOf(u"orderedList", 1)), 18 + BlockMetrics::markerGap);
    EXPECT_GT(left(with(listOf(u"orderedList", 1), u"order"_s, 1000)),
              18 + BlockMetrics::markerGap);
}

TEST(DocumentBlocks, MarkersGrowWithTheText)
{
    const auto left = [](double scale) {
        const auto document = ADF::document({listOf(u"orderedList", 1)});
        return DocumentBlocks::of(document, {.textScale = scale}).flows[0].pieces[0].left;
    };
    EXPECT_GE(left(3) - BlockMetrics::markerGap, 3 * 13);
}

TEST(DocumentBlocks, AnEmptyListItemStillHasItsMarker)
{
    const auto blocks = blocksOf({ADF::container(u"bulletList", {ADF::plain(u"listItem")})});
    EXPECT_EQ(markersOf(blocks), QStringList{u"•"_s});
    EXPECT_EQ(textsOf(blocks), QStringList{QString()});
}

TEST(DocumentBlocks, ANestedListIsAChildOfItsItem)
{
    const auto inner = listOf(u"orderedList", 1);
    const auto blocks = blocksOf(
        {ADF::container(u"bulletList", {ADF::container(u"listItem", {paragraph(u"a"_s), inner})})});
    EXPECT_EQ(markersOf(blocks), (QStringList{u"•"_s, u"1."_s}));
    EXPECT_GT(blocks.flows[0].pieces[1].left, blocks.flows[0].pieces[0].left);
}

TEST(DocumentBlocks, ATaskItemShowsInlineNodesAndAWrappedParagraphAlike)
{
    const auto blocks = blocksOf(
        {ADF::container(u"taskList", {ADF::container(u"taskItem", {ADF::text(u"nu"_s)}),
                                      ADF::container(u"taskItem", {paragraph(u"enveloppé"_s)})})});
    EXPECT_EQ(textsOf(blocks), (QStringList{u"nu"_s, u"enveloppé"_s}));
    EXPECT_EQ(blocks.flows[0].pieces[1].gap, 5);
}

TEST(DocumentBlocks, ADoneTaskIsStruckThroughInTheSecondaryColour)
{
    const auto item = with(ADF::container(u"taskItem", {ADF::text(u"a"_s)}), u"state"_s, u"DONE");
    const auto blocks = blocksOf({ADF::container(u"taskList", {item})});
    EXPECT_TRUE(blocks.texts[0].isStruck && blocks.texts[0].isSecondary);
    EXPECT_TRUE(frame(blocks, Frame::Kind::Task).isDone);
}

TEST(DocumentBlocks, ATaskOfAnyOtherStateIsOpen)
{
    for (const auto *state : {u"TODO", u"done", u""}) {
        const auto item = with(ADF::container(u"taskItem", {ADF::text(u"a"_s)}), u"state"_s, state);
        const auto blocks = blocksOf({ADF::container(u"taskList", {item})});
        EXPECT_FALSE(blocks.texts[0].isStruck || blocks.texts[0].isSecondary);
        EXPECT_FALSE(frame(blocks, Frame::Kind::Task).isDone);
    }
}

TEST(DocumentBlocks, ADecisionListUsesTheSameRowsWithDecidedAsDone)
{
    const auto item =
        with(ADF::container(u"decisionItem", {ADF::text(u"a"_s)}), u"state"_s, u"DECIDED");
    const auto blocks = blocksOf({ADF::container(u"decisionList", {item})});
    EXPECT_TRUE(frame(blocks, Frame::Kind::Task).isDone);
}

TEST(DocumentBlocks, ATaskListInATaskListIsIndented)
{
    const auto item = ADF::container(u"taskItem", {ADF::text(u"a"_s)});
    const auto blocks =
        blocksOf({ADF::container(u"taskList", {item, ADF::container(u"taskList", {item})})});
    EXPECT_EQ(textsOf(blocks), (QStringList{u"a"_s, u"a"_s}));
    EXPECT_GT(blocks.flows[0].pieces[1].left, blocks.flows[0].pieces[0].left);
}

TEST(DocumentBlocks, ACodeBlockShowsItsPlainTextAndScrolls)
{
    const auto blocks = blocksOf({ADF::container(u"codeBlock", {ADF::text(u"a\n\tbc"_s)})});
    EXPECT_EQ(textsOf(blocks), QStringList{u"a\n\tbc"_s});
    EXPECT_EQ(blocks.texts[0].role, Role::Code);
    EXPECT_EQ(frame(blocks, Frame::Kind::Code).scroller, 0);
    EXPECT_EQ(blocks.scrollers, 1);
}

TEST(DocumentBlocks, AQuoteIsSecondaryAndStandsBehindABarOfThreeAndAGapOfTen)
{
    const auto blocks =
        blocksOf({ADF::container(u"blockquote", {paragraph(u"a"_s), paragraph(u"b"_s)})});
    EXPECT_TRUE(blocks.texts[0].isSecondary);
    EXPECT_EQ(blocks.flows[0].pieces[0].left, 13);
    EXPECT_EQ(blocks.flows[0].pieces[1].gap, 6);
    EXPECT_EQ(frame(blocks, Frame::Kind::Quote).end, 2);
}

TEST(DocumentBlocks, APanelHasItsStyleAndSixPointsBetweenItsBlocks)
{
    const auto panel = with(ADF::container(u"panel", {paragraph(u"a"_s), paragraph(u"b"_s)}),
                            u"panelType"_s, u"warning");
    const auto blocks = blocksOf({panel});
    EXPECT_EQ(frame(blocks, Frame::Kind::Panel).panel, PanelStyle::of(u"warning"_s));
    EXPECT_EQ(blocks.flows[0].pieces[1].gap, 6);
}

TEST(DocumentBlocks, PaddingsSurroundTheContentOfAPanel)
{
    const auto blocks =
        blocksOf({ADF::container(u"panel", {paragraph(u"a"_s)}), paragraph(u"b"_s)});
    const auto &panel = frame(blocks, Frame::Kind::Panel);
    EXPECT_EQ(panel.above, BlockMetrics::panelPadding);
    EXPECT_EQ(panel.below, BlockMetrics::panelPadding);
    EXPECT_EQ(blocks.flows[0].pieces[1].gap, BlockMetrics::panelPadding + 10);
}

TEST(DocumentBlocks, AnEmptyPanelIsStillShown)
{
    EXPECT_EQ(frame(blocksOf({ADF::plain(u"panel")}), Frame::Kind::Panel).end, 1);
}

TEST(DocumentBlocks, ARuleHasFourPointsOfPadding)
{
    const auto blocks = blocksOf({paragraph(u"a"_s), ADF::plain(u"rule"), paragraph(u"b"_s)});
    EXPECT_EQ(blocks.flows[0].pieces[1].kind, Piece::Kind::Rule);
    EXPECT_EQ(blocks.flows[0].pieces[1].gap, 14);
    EXPECT_EQ(blocks.flows[0].pieces[2].gap, 14);
}

TEST(DocumentBlocks, MediaNodesAreMediaBlocks)
{
    const auto media = with(ADF::plain(u"media"), u"alt"_s, u"a.png");
    const auto blocks = blocksOf({ADF::container(u"mediaSingle", {media}),
                                  ADF::container(u"mediaGroup", {media, media}), media});
    ASSERT_EQ(blocks.media.size(), 3U);
    EXPECT_EQ(blocks.media[1].fileNames().size(), 2);
    EXPECT_EQ(blocks.flows[0].pieces[2].kind, Piece::Kind::Media);
}

TEST(DocumentBlocks, ATableHasARowForEachChildAndACellForEachOfItsChildren)
{
    const auto blocks = blocksOf({ADF::container(
        u"table",
        {ADF::container(u"tableRow", {cell(u"tableHeader", u"A"_s), cell(u"tableHeader", u"B"_s)}),
         ADF::container(u"tableRow", {cell(u"tableCell", u"1"_s), cell(u"tableCell", u"2"_s)})})});
    ASSERT_EQ(blocks.rows.size(), 2U);
    EXPECT_EQ(blocks.tables[0].columns, 2);
    EXPECT_TRUE(blocks.rows[0].cells[0].isHeader);
    EXPECT_FALSE(blocks.rows[1].cells[0].isHeader);
    EXPECT_EQ(blocks.texts[0].role, Role::HeaderCell);
    EXPECT_EQ(blocks.texts[2].role, Role::Cell);
}

TEST(DocumentBlocks, ARowWithFewerCellsThanTheOthersLeavesItsRemainingPlacesEmpty)
{
    const auto blocks = blocksOf({ADF::container(
        u"table",
        {ADF::container(u"tableRow", {cell(u"tableCell", u"1"_s)}),
         ADF::container(u"tableRow", {cell(u"tableCell", u"2"_s), cell(u"tableCell", u"3"_s)})})});
    EXPECT_EQ(blocks.rows[0].cells.size(), 1U);
    EXPECT_EQ(blocks.tables[0].columns, 2);
}

TEST(DocumentBlocks, BlocksOfACellAreFourPointsApart)
{
    const auto full = ADF::container(u"tableCell", {paragraph(u"a"_s), paragraph(u"b"_s)});
    const auto blocks = blocksOf({ADF::container(u"table", {ADF::container(u"tableRow", {full})})});
    EXPECT_EQ(blocks.flows[1].pieces[1].gap, 4);
}

TEST(DocumentBlocks, AnExpandIsClosedAtFirstAndShowsOnlyItsTitle)
{
    const auto expand =
        with(ADF::container(u"expand", {paragraph(u"caché"_s)}), u"title"_s, u"Journal");
    EXPECT_EQ(textsOf(blocksOf({expand})), QStringList{u"Journal"_s});
}

TEST(DocumentBlocks, AnOpenExpandShowsItsContentSixPointsBelow)
{
    const auto expand =
        with(ADF::container(u"nestedExpand", {paragraph(u"a"_s)}), u"title"_s, u"Journal");
    const auto blocks = blocksOf({expand}, {{0, u"Journal"_s}});
    EXPECT_EQ(textsOf(blocks), (QStringList{u"Journal"_s, u"a"_s}));
    EXPECT_EQ(blocks.flows[0].pieces[1].gap, 6);
}

TEST(DocumentBlocks, AnExpandWithAnEmptyTitleShowsAnEmptyTitleAndOnlyAnAbsentOneShowsDetails)
{
    const auto blocks = blocksOf(
        {with(ADF::container(u"expand", {}), u"title"_s, u""), ADF::container(u"expand", {})});
    EXPECT_EQ(textsOf(blocks), (QStringList{QString(), u"Détails"_s}));
}

TEST(DocumentBlocks, AnExpandKeepsItsNumberWhenOneAboveItIsOpened)
{
    const auto inner = ADF::container(u"expand", {paragraph(u"a"_s)});
    const QList<ADFNode> nodes{ADF::container(u"expand", {inner}), inner};
    EXPECT_EQ(blocksOf(nodes).expands.at(2).key.number, 2);
    EXPECT_EQ(blocksOf(nodes, {{0, u"Détails"_s}}).expands.at(2).key.number, 2);
}

TEST(DocumentBlocks, ALayoutSectionShowsItsColumnsOneBelowTheOther)
{
    const auto blocks = blocksOf(
        {ADF::container(u"layoutSection", {ADF::container(u"layoutColumn", {paragraph(u"a"_s)}),
                                           ADF::container(u"layoutColumn", {paragraph(u"b"_s)})})});
    EXPECT_EQ(textsOf(blocks), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(blocks.flows[0].pieces[1].gap, 6);
}

TEST(DocumentBlocks, AnUnknownBlockWithoutContentShowsItsInlineText)
{
    const auto card = with(ADF::plain(u"blockCard"), u"url"_s, u"https://exemple.fr");
    EXPECT_EQ(textsOf(blocksOf({card, ADF::text(u"libre"_s)})),
              (QStringList{u"https://exemple.fr"_s, u"libre"_s}));
}

TEST(DocumentBlocks, ANodeWithNeitherContentNorTextStaysBlankAndTakesNoSpace)
{
    const auto blocks = blocksOf({paragraph(u"a"_s), ADF::plain(u"nouveau"),
                                  ADF::container(u"autre", {}), paragraph(u"b"_s)});
    EXPECT_EQ(textsOf(blocks), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(blocks.flows[0].pieces[1].gap, 10);
}

TEST(DocumentBlocks, AThousandNestedContainersAreDivided)
{
    ADFNode node = paragraph(u"fond"_s);
    for (int i = 0; i < 1000; ++i)
        node = ADF::container(i % 2 ? u"blockquote" : u"nouveau", {node});
    EXPECT_EQ(textsOf(blocksOf({node})), QStringList{u"fond"_s});
}

TEST(DocumentBlocks, TenThousandChildrenAreDivided)
{
    EXPECT_EQ(blocksOf(QList<ADFNode>(10000, paragraph(u"a"_s))).texts.size(), 10000U);
}

TEST(DocumentBlocks, AMegabyteInOneTextIsDividedIntoPartsThatContinueEachOther)
{
    const auto blocks = blocksOf({paragraph(u"mot "_s.repeated(262144))});
    EXPECT_GT(blocks.texts.size(), 200U);
    EXPECT_EQ(blocks.texts[1].joint, QString());
    EXPECT_EQ(blocks.flows[0].pieces[1].gap, 0);
}

TEST(DocumentBlocks, CopiedTextsAreSeparatedByLinesAndCellsByTabs)
{
    const auto row =
        ADF::container(u"tableRow", {cell(u"tableCell", u"1"_s), cell(u"tableCell", u"2"_s)});
    const auto blocks =
        blocksOf({paragraph(u"a"_s), ADF::container(u"table", {row, row}), paragraph(u"b"_s)});
    QString copied;
    for (const auto &text : blocks.texts)
        copied += text.joint + textOf(text);
    EXPECT_EQ(copied, u"a\n1\t2\n1\t2\nb"_s);
}
