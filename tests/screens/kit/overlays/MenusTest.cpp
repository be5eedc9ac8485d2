#include "screens/Bench.h"

#include <QQuickItem>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The x coordinate at which the title of a menu row begins.
qreal titleOf(const QQuickItem *menuHolder, const char *row, const QString &text)
{
    auto *item = menuHolder->property(row).value<QQuickItem *>();
    auto *label = item->property("contentItem").value<QQuickItem *>()->childItems().value(0);
    for (auto *part : label ? label->childItems() : QList<QQuickItem *>()) {
        if (part->property("text").toString() == text)
            return part->mapToItem(item, QPointF()).x();
    }
    ADD_FAILURE() << "no title";
    return -1;
}

} // namespace

TEST(Menus, ADestructiveRowIsRedUnlessItIsDisabled)
{
    Bench bench;
    const auto *holder = bench.show(
        u"Item { property alias menu: m; property alias row: a; PopupMenu { id: m; "
        "PopupMenuItem { id: a; text: 'Supprimer…'; symbol: 'trash'; destructive: true } } }"_s);
    ASSERT_NE(holder, nullptr) << bench.warnings();
    auto *row = holder->property("row").value<QQuickItem *>();
    EXPECT_EQ(row->property("ink"), bench.token("theme", "redText"));
    EXPECT_EQ(row->property("quietInk"), bench.token("theme", "redText"));
    row->setProperty("highlighted", true);
    EXPECT_EQ(row->property("ink"), bench.token("theme", "textOnAccent"));
    row->setEnabled(false);
    EXPECT_EQ(row->property("ink"), bench.token("theme", "text4"));
}

class MenuTickTest : public testing::Test
{
protected:
    QQuickItem *open(bool isTicked)
    {
        auto *holder = m_bench.show(
            u"Item { property alias menu: m; property alias first: a; property alias second: b; "
            "PopupMenu { id: m; PopupMenuItem { id: a; text: 'Backlog'; checked: %1 } "
            "PopupMenuItem { id: b; text: 'Annulé' } } }"_s.arg(isTicked ? u"true"_s : u"false"_s));
        QMetaObject::invokeMethod(holder->property("menu").value<QObject *>(), "open");
        return holder;
    }
    void TearDown() override { EXPECT_EQ(m_bench.warnings(), ""); }

    Bench m_bench;
};

TEST_F(MenuTickTest, WithATickAllTitlesStandBehindItsColumn)
{
    auto *menu = open(true);
    EXPECT_DOUBLE_EQ(titleOf(menu, "first", u"Backlog"_s), 9 + 21);
    EXPECT_DOUBLE_EQ(titleOf(menu, "second", u"Annulé"_s), 9 + 21);
}

TEST_F(MenuTickTest, WithoutATickNoRoomIsKept)
{
    auto *menu = open(false);
    EXPECT_DOUBLE_EQ(titleOf(menu, "first", u"Backlog"_s), 9);
    EXPECT_DOUBLE_EQ(titleOf(menu, "second", u"Annulé"_s), 9);
}

TEST_F(MenuTickTest, TheNextOpeningKnowsOfATickThatCameMeanwhile)
{
    auto *holder = open(false);
    auto *menu = holder->property("menu").value<QObject *>();
    QMetaObject::invokeMethod(menu, "close");
    holder->property("second").value<QQuickItem *>()->setProperty("checked", true);
    QMetaObject::invokeMethod(menu, "open");
    EXPECT_DOUBLE_EQ(titleOf(holder, "first", u"Backlog"_s), 9 + 21);
}
