#include "screens/Bench.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QQuickItem *named(QQuickItem *item, const QString &text)
{
    if (item->property("text").toString() == text)
        return item;
    for (auto *child : item->childItems()) {
        if (auto *found = named(child, text))
            return found;
    }
    return nullptr;
}

QRectF place(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

} // namespace

TEST(FormCard, StacksItsRowsWithTheTitleAboveAndTheFootnoteBelow)
{
    Bench bench;
    auto *card = bench.show(
        u"FormCard { width: 400; title: 'Liste'; footnote: 'Vaut pour toutes les listes.'; "
        "FormRow { text: 'Clé'; ToggleSwitch { name: 'Clé' } } "
        "FormRow { text: 'Type'; ToggleSwitch { name: 'Type' } } }"_s);
    ASSERT_NE(card, nullptr) << bench.warnings();
    EXPECT_DOUBLE_EQ(place(named(card, u"Type"_s)).y() - place(named(card, u"Clé"_s)).y(), 40);
    EXPECT_DOUBLE_EQ(card->height(), 26 + 2 * 40 + 8 + 14);
    auto *known = Bench::accessible(card);
    EXPECT_EQ(known->role(), QAccessible::Grouping);
    EXPECT_EQ(known->text(QAccessible::Name), u"Liste"_s);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(FormCard, LinesSeparateTheVisibleRowsOnly)
{
    Bench bench;
    auto *card = bench.show(
        u"FormCard { width: 400; FormRow { text: 'Un' } FormRow { text: 'Deux'; visible: false } "
        "FormRow { text: 'Trois' } }"_s);
    ASSERT_NE(card, nullptr) << bench.warnings();
    bench.window().grabWindow();
    QList<qreal> lines;
    const auto collect = [&](auto &self, const QQuickItem *item) -> void {
        for (auto *child : item->childItems()) {
            if (child->inherits("Hairline") && child->isVisible())
                lines += place(child).y();
            self(self, child);
        }
    };
    collect(collect, card);
    EXPECT_EQ(lines, QList<qreal>{40});
    EXPECT_EQ(bench.warnings(), "");
}

TEST(FormRow, GrowsWithAWrappedLabelAndItsCaption)
{
    Bench bench;
    auto *row =
        bench.show(u"FormRow { width: 300; text: 'Afficher aussi les tickets qui sont terminés "
                   u"depuis longtemps'; "
                   "caption: 'Sans effet sur le tableau.'; ToggleSwitch { name: 'Terminés' } }"_s);
    ASSERT_NE(row, nullptr) << bench.warnings();
    EXPECT_GE(row->height(), 2 * 18 + 2 + 14 + 20);
    const auto *toggle = row->childItems().last()->childItems().first();
    EXPECT_DOUBLE_EQ(place(toggle).right(), 300 - 14);
    EXPECT_LE(place(named(row, u"Sans effet sur le tableau."_s)).right(), place(toggle).left());
    EXPECT_EQ(bench.warnings(), "");
}

TEST(NoticeBanner, TellsWhatIsWrongAsAnAlertAndOffersItsAction)
{
    Bench bench;
    auto *banner = bench.show(
        u"NoticeBanner { property int count: 0; width: 380; symbol: 'key.slash'; title: 'Session'; "
        "reason: 'Le trousseau est verrouillé.'; action: 'Réessayer'; "
        "actionSymbol: 'arrow.clockwise'; onTriggered: count += 1 }"_s);
    ASSERT_NE(banner, nullptr) << bench.warnings();
    auto *known = Bench::accessible(banner);
    EXPECT_EQ(known->role(), QAccessible::AlertMessage);
    EXPECT_EQ(known->text(QAccessible::Name), u"Session. Le trousseau est verrouillé."_s);

    named(banner, u"Réessayer"_s)->forceActiveFocus();
    QTest::keyClick(&bench.window(), Qt::Key_Space);

    EXPECT_EQ(banner->property("count"), 1);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(InlineError, IsAnAlertAsHighAsItsLines)
{
    Bench bench;
    auto *error = bench.show(
        u"InlineError { width: 200; text: 'Vérifie que le token appartient bien à ce compte.' }"_s);
    ASSERT_NE(error, nullptr) << bench.warnings();
    EXPECT_EQ(Bench::accessible(error)->role(), QAccessible::AlertMessage);
    const qreal narrow = error->implicitHeight();
    error->setWidth(900);
    EXPECT_LT(error->implicitHeight(), narrow);
}
