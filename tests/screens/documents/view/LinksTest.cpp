#include "screens/documents/view/DocumentBench.h"

using namespace Qt::StringLiterals;
using namespace SampleTrees;

namespace {

ADFNode linked(const QString &address)
{
    return ADF::container(
        u"paragraph", {ADF::text(u"voir "_s), link(u"la page"_s, address), ADF::text(u" ici"_s)});
}

} // namespace

using DocumentLinks = DocumentWindow;

TEST_F(DocumentLinks, AClickReportsTheAddress)
{
    show({linked(u"https://exemple.fr/a?b=1"_s)});
    const QSignalSpy opened(reader, &DocumentReader::linkActivated);
    click(middleOf(0, 5, 12));
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened[0][0].toString(), u"https://exemple.fr/a?b=1"_s);
}

TEST_F(DocumentLinks, AClickBesideALinkReportsNothing)
{
    show({linked(u"https://exemple.fr"_s)});
    const QSignalSpy opened(reader, &DocumentReader::linkActivated);
    click(middleOf(0, 0, 4));
    click(reader->mapToScene({480, 10}).toPoint());
    EXPECT_EQ(opened.size(), 0);
}

TEST_F(DocumentLinks, OnlyWebAndMailAddressesAreReported)
{
    show({linked(u"file:///etc/passwd"_s), linked(u"javascript:alert(1)"_s), linked(u"/relatif"_s),
          linked(u"mailto:a@exemple.fr"_s), linked(u"HTTP://exemple.fr"_s),
          linked(u"https:chemin"_s)});
    const QSignalSpy opened(reader, &DocumentReader::linkActivated);
    for (int text = 0; text < 6; ++text)
        click(middleOf(text, 5, 12));
    ASSERT_EQ(opened.size(), 2);
    EXPECT_EQ(opened[0][0].toString(), u"mailto:a@exemple.fr"_s);
}

TEST_F(DocumentLinks, ADragThatStartsOnALinkSelectsAndOpensNothing)
{
    show({linked(u"https://exemple.fr"_s)});
    const QSignalSpy opened(reader, &DocumentReader::linkActivated);
    drag(middleOf(0, 5, 12), before(0, 14));
    EXPECT_EQ(opened.size(), 0);
    EXPECT_FALSE(reader->selectedText().isEmpty());
}

TEST_F(DocumentLinks, ThePointerIsAHandOverALinkAndTheAddressIsShown)
{
    show({linked(u"https://exemple.fr/vrai"_s)});
    QTest::mouseMove(&bench.window(), middleOf(0, 0, 4));
    EXPECT_EQ(reader->cursor().shape(), Qt::IBeamCursor);
    QTest::mouseMove(&bench.window(), middleOf(0, 5, 12));
    EXPECT_EQ(reader->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(reader->linkHint(), u"https://exemple.fr/vrai"_s);
    QTest::mouseMove(&bench.window(), reader->mapToScene({450, 8}).toPoint());
    EXPECT_EQ(reader->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(reader->linkHint(), QString());
    expectNoWarnings();
}

TEST_F(DocumentLinks, ALinkWhoseTextNamesAnotherHostSaysSo)
{
    const QString address = u"https://pirate.example/a"_s;
    show({ADF::container(u"paragraph",
                         {link(u"https://ma"_s, address), link(u"banque.fr"_s, address)})});
    QTest::mouseMove(&bench.window(), middleOf(0, 2, 8));
    EXPECT_EQ(reader->linkHint(), u"Attention : le texte nomme «\u00A0mabanque.fr\u00A0», mais le "
                                  u"lien mène à «\u00A0pirate.example\u00A0»."
                                  "\nhttps://pirate.example/a"_s);
}

TEST_F(DocumentLinks, CharactersThatHideInALinkOrAMentionAreVisible)
{
    show({ADF::container(u"paragraph", {link(u"a\u202Eb"_s, u"https://exemple.fr"_s)}),
          ADF::container(u"paragraph", {with(ADF::plain(u"mention"), u"text"_s, u"@c\u202Ed"_s)}),
          paragraph(u"e\u202Ef"_s)});
    reader->selectAll();
    EXPECT_EQ(reader->selectedText(), u"a[U+202E]b\n@c[U+202E]d\ne\u202Ef"_s);
}

TEST_F(DocumentLinks, TabVisitsThemInOrderAndReturnOpensThem)
{
    show({linked(u"https://exemple.fr/1"_s), paragraph(u"rien"_s),
          linked(u"https://exemple.fr/2"_s)});
    const QSignalSpy opened(reader, &DocumentReader::linkActivated);
    press(Qt::Key_Tab);
    EXPECT_TRUE(reader->hasActiveFocus());
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    press(Qt::Key_Enter, Qt::KeypadModifier);
    ASSERT_EQ(opened.size(), 2);
    EXPECT_EQ(opened[0][0].toString(), u"https://exemple.fr/1"_s);
    EXPECT_EQ(opened[1][0].toString(), u"https://exemple.fr/2"_s);
}

TEST_F(DocumentLinks, TabLeavesTheDocumentAfterTheLastAndBacktabReturnsToIt)
{
    auto *root =
        bench.show(u"import Velmora.Documents\nColumn {\n"
                   "ADFContentView { objectName: 'one'; width: 300; height: implicitHeight }\n"
                   "ADFContentView { objectName: 'two'; width: 300; height: implicitHeight } }"_s);
    auto *one = root->findChild<DocumentReader *>(u"one"_s);
    auto *two = root->findChild<DocumentReader *>(u"two"_s);
    ASSERT_TRUE(one && two);
    for (auto *view : {one, two})
        view->setNode(ADF::document({linked(u"https://exemple.fr"_s)}));
    frame();
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(one->focusedStop(), 0);
    press(Qt::Key_Tab);
    EXPECT_TRUE(two->hasActiveFocus());
    EXPECT_EQ(two->focusedStop(), -1);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(one->hasActiveFocus());
    EXPECT_EQ(one->focusedStop(), 0);
}

TEST_F(DocumentLinks, TheFocusIsDrawnAfterAKeyAndNotAfterAClick)
{
    show({linked(u"https://exemple.fr"_s)});
    const QImage plain = frame();
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_NE(frame(), plain);
    click(before(0, 1));
    QTest::mouseMove(&bench.window(), QPoint(1, 1));
    EXPECT_EQ(frame(), plain);
}

TEST_F(DocumentLinks, AFocusedLinkAsksToBeInSight)
{
    QList<ADFNode> blocks(60, paragraph(u"texte"_s));
    blocks.append(linked(u"https://exemple.fr"_s));
    show(blocks);
    const QSignalSpy revealed(reader, &DocumentReader::revealRequested);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    ASSERT_FALSE(revealed.isEmpty());
    EXPECT_GT(revealed.last()[0].toRectF().top(), 1000);
}
