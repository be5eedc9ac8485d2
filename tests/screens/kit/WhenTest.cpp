#include "screens/Bench.h"

#include <QPointer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList names(const QQuickItem *parent)
{
    QStringList list;
    for (const auto *child : parent->childItems()) {
        if (!child->objectName().isEmpty())
            list += child->objectName();
    }
    return list;
}

} // namespace

TEST(When, TheChildIsThereOnlyWhileShown)
{
    Bench bench;
    auto *holder = bench.show(
        u"Item { id: r; property bool on: false; When { shown: r.on; Item { objectName: 'child' } } }"_s);
    ASSERT_NE(holder, nullptr) << bench.warnings();
    EXPECT_EQ(names(holder), QStringList());
    holder->setProperty("on", true);
    EXPECT_EQ(names(holder), QStringList{u"child"_s});
    holder->setProperty("on", false);
    EXPECT_EQ(names(holder), QStringList());
    EXPECT_EQ(bench.warnings(), "");
}

TEST(When, TheChildStandsInLineWithItsNeighboursAndTakesNoOtherPlace)
{
    Bench bench;
    auto *row =
        bench.show(u"Row { id: r; property bool on: false; spacing: 5; "
                   "Item { objectName: 'first'; width: 10; height: 10 } "
                   "When { shown: r.on; Item { objectName: 'child'; width: 10; height: 10 } } "
                   "Item { objectName: 'last'; width: 10; height: 10 } }"_s);
    ASSERT_NE(row, nullptr) << bench.warnings();
    EXPECT_DOUBLE_EQ(row->implicitWidth(), 25);
    row->setProperty("on", true);
    bench.window().grabWindow();
    EXPECT_EQ(names(row), (QStringList{u"first"_s, u"child"_s, u"last"_s}));
    EXPECT_DOUBLE_EQ(row->implicitWidth(), 40);
}

TEST(When, TheChildMayDropItself)
{
    Bench bench;
    auto *holder = bench.show(
        u"Item { id: r; property bool on: true; property int gone: 0; When { shown: r.on; "
        "Item { objectName: 'child'; signal done(); onDone: { r.on = false; r.gone += 1 } } } }"_s);
    ASSERT_NE(holder, nullptr) << bench.warnings();
    QMetaObject::invokeMethod(holder->childItems().first(), "done");
    EXPECT_EQ(names(holder), QStringList());
    EXPECT_EQ(holder->property("gone").toInt(), 1);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(When, ItsEndIsTheEndOfTheChild)
{
    Bench bench;
    auto *holder = bench.show(
        u"Item { id: r; property bool on: true; When { id: outer; objectName: 'outer'; shown: "
        u"r.on; "
        "Item { objectName: 'child'; When { shown: true; Item { objectName: 'grandchild' } } } } }"_s);
    ASSERT_NE(holder, nullptr) << bench.warnings();
    QPointer<QQuickItem> child = holder->findChild<QQuickItem *>(u"child"_s);
    QPointer<QQuickItem> grandchild = holder->findChild<QQuickItem *>(u"grandchild"_s);
    ASSERT_TRUE(child && grandchild);
    holder->setProperty("on", false);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(child);
    EXPECT_FALSE(grandchild);
}
