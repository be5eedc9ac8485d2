#include "screens/Bench.h"

#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString pressable[]{
    u"PushButton { text: 'Créer'; focus: true }"_s,
    u"IconButton { name: 'Ajouter'; symbol: 'plus'; focus: true }"_s,
    u"ToolbarCell { name: 'Liste'; symbol: 'list.bullet'; focus: true }"_s,
    u"SidebarRow { text: 'Mes tickets'; width: 200; focus: true }"_s,
    u"ToastCard { message: 'Copié'; symbol: 'link'; isError: false; focus: true }"_s,
    u"CheckBox { text: 'Ticket interne'; focus: true }"_s,
    u"GlassChip { title: 'Statut'; focus: true }"_s,
    u"MenuPicker { name: 'Trier par'; choices: ['Clé']; current: 0; focus: true }"_s,
    u"ToggleSwitch { name: 'Afficher'; focus: true }"_s,
    u"DisclosureButton { text: 'Détails'; focus: true }"_s,
};

QPoint middle(const QQuickItem *item)
{
    return item->mapToScene(item->boundingRect().center()).toPoint();
}

const QQuickItem *ringBelow(const QQuickItem *item)
{
    for (const auto *child : item->childItems()) {
        if (child->property("shown").isValid() && child->property("corner").isValid())
            return child;
        if (const auto *ring = ringBelow(child))
            return ring;
    }
    return nullptr;
}

bool showsRing(const QQuickItem *control)
{
    const auto *ring = ringBelow(control);
    EXPECT_NE(ring, nullptr);
    return ring && ring->isVisible();
}

} // namespace

class EveryPressable : public testing::TestWithParam<QString>
{
};

INSTANTIATE_TEST_SUITE_P(Kit, EveryPressable, testing::ValuesIn(pressable), [](const auto &info) {
    return info.param.section(u' ', 0, 0).toStdString();
});

TEST_P(EveryPressable, EachKeyPressesOnce)
{
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        Bench bench;
        auto *control = bench.show(GetParam());
        ASSERT_NE(control, nullptr);
        QSignalSpy clicked(control, SIGNAL(clicked()));
        QTest::keyClick(&bench.window(), key);
        EXPECT_EQ(clicked.count(), 1) << key;
        EXPECT_EQ(bench.warnings(), "");
    }
}

TEST_P(EveryPressable, DisabledOneIgnoresKeysAndClicks)
{
    Bench bench;
    auto *control = bench.show(GetParam());
    control->setEnabled(false);
    QSignalSpy clicked(control, SIGNAL(clicked()));
    QTest::keyClick(&bench.window(), Qt::Key_Return);
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, middle(control));
    EXPECT_EQ(clicked.count(), 0);
}

TEST_P(EveryPressable, ScreenReadersPressItOnce)
{
    Bench bench;
    auto *control = bench.show(GetParam());
    QSignalSpy clicked(control, SIGNAL(clicked()));
    auto *actions = Bench::accessible(control)->actionInterface();
    ASSERT_NE(actions, nullptr);
    ASSERT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicked.count(), 1);
}

TEST_P(EveryPressable, ScreenReadersDoNotPressADisabledOne)
{
    Bench bench;
    auto *control = bench.show(GetParam());
    control->setEnabled(false);
    QSignalSpy clicked(control, SIGNAL(clicked()));
    auto *actions = Bench::accessible(control)->actionInterface();
    actions->doAction(QAccessibleActionInterface::pressAction());
    actions->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(clicked.count(), 0);
    EXPECT_FALSE(control->property("checked").toBool());
}

TEST_P(EveryPressable, RingShowsAfterAKeyAndNotAfterAClick)
{
    Bench bench;
    auto *control = bench.show(GetParam());
    control->setFocus(false);
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, middle(control));
    EXPECT_FALSE(showsRing(control));
    // Closes whatever the click has opened.
    QTest::keyClick(&bench.window(), Qt::Key_Escape);
    QTest::keyClick(&bench.window(), Qt::Key_Tab);
    EXPECT_TRUE(control->hasActiveFocus());
    EXPECT_TRUE(showsRing(control));
}

TEST(Controls, PressedGlassButtonShrinksAndComesBack)
{
    Bench bench;
    bench.setToken("motion", "reduced", false);
    auto *button = bench.show(u"PushButton { text: 'Créer' }"_s);
    QTest::mousePress(&bench.window(), Qt::LeftButton, {}, middle(button));
    EXPECT_TRUE(QTest::qWaitFor([&] { return qFuzzyCompare(button->scale(), 0.97); }));
    QTest::mouseRelease(&bench.window(), Qt::LeftButton, {}, middle(button));
    EXPECT_TRUE(QTest::qWaitFor([&] { return qFuzzyCompare(button->scale(), 1.0); }));
}

TEST(Controls, HintOfAButtonComesUnderThePointer)
{
    Bench bench;
    auto *button = bench.show(u"IconButton { x: 100; y: 100; name: 'Ajouter'; symbol: 'plus' }"_s);
    ASSERT_NE(button, nullptr);
    QTest::mouseMove(&bench.window(), {300, 300});
    QTest::mouseMove(&bench.window(), middle(button));
    const auto hintIsThere = [&] {
        const auto *overlay = bench.window().property("_q_QQuickOverlay").value<QQuickItem *>();
        return overlay && !overlay->childItems().isEmpty();
    };
    EXPECT_TRUE(QTest::qWaitFor(hintIsThere, 3000));
    EXPECT_EQ(bench.warnings(), "");
}

TEST(Controls, HintOfAPressedButtonWaitsUntilThePointerComesAgain)
{
    Bench bench;
    auto *button = bench.show(u"IconButton { x: 100; y: 100; name: 'Ajouter'; symbol: 'plus' }"_s);
    ASSERT_NE(button, nullptr);
    const auto hintIsThere = [&] {
        const auto *overlay = bench.window().property("_q_QQuickOverlay").value<QQuickItem *>();
        return overlay && !overlay->childItems().isEmpty();
    };
    QTest::mouseMove(&bench.window(), {300, 300});
    QTest::mouseMove(&bench.window(), middle(button));
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, middle(button));
    EXPECT_FALSE(QTest::qWaitFor(hintIsThere, 1500));

    QTest::mouseMove(&bench.window(), {300, 300});
    QTest::mouseMove(&bench.window(), middle(button));
    EXPECT_TRUE(QTest::qWaitFor(hintIsThere, 3000));
}

TEST(Controls, HintComesAlsoAfterAPressByKeyboard)
{
    Bench bench;
    auto *button = bench.show(
        u"IconButton { x: 100; y: 100; name: 'Ajouter'; symbol: 'plus'; focus: true }"_s);
    ASSERT_NE(button, nullptr);
    const auto hintIsThere = [&] {
        const auto *overlay = bench.window().property("_q_QQuickOverlay").value<QQuickItem *>();
        return overlay && !overlay->childItems().isEmpty();
    };
    QTest::mouseMove(&bench.window(), {300, 300});
    QTest::keyClick(&bench.window(), Qt::Key_Space);
    QTest::mouseMove(&bench.window(), middle(button));
    EXPECT_TRUE(QTest::qWaitFor(hintIsThere, 3000));
}

TEST(Controls, HoverFillIsThereAtOnceAndLeavesSoftly)
{
    Bench bench;
    bench.setToken("motion", "reduced", false);
    auto *holder = bench.show(u"Item { width: 100; height: 30; property bool lit: false; "
                              "HoverFill { shown: parent.lit } }"_s);
    ASSERT_NE(holder, nullptr) << bench.warnings();
    const auto *fill = holder->childItems().first();
    EXPECT_DOUBLE_EQ(fill->opacity(), 0);
    holder->setProperty("lit", true);
    EXPECT_DOUBLE_EQ(fill->opacity(), 1);
    holder->setProperty("lit", false);
    EXPECT_GT(fill->opacity(), 0.5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return fill->opacity() == 0; }));
    EXPECT_EQ(bench.warnings(), "");
}

TEST(Controls, CheckBoxTogglesWithEveryWayOfPressing)
{
    Bench bench;
    auto *box = bench.show(u"CheckBox { text: 'Sélectionner'; focus: true }"_s);
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, middle(box));
    EXPECT_TRUE(box->property("checked").toBool());
    QTest::keyClick(&bench.window(), Qt::Key_Return);
    EXPECT_FALSE(box->property("checked").toBool());
    Bench::accessible(box)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(box->property("checked").toBool());
    EXPECT_TRUE(Bench::accessible(box)->state().checked);
}

TEST(Controls, SearchFieldIsEmptiedByItsButton)
{
    Bench bench;
    auto *field =
        bench.show(u"SearchField { name: 'Filtrer'; placeholderText: 'Filtrer'; focus: true }"_s);
    ASSERT_NE(field, nullptr);
    QTest::keyClick(&bench.window(), Qt::Key_A);
    EXPECT_EQ(field->property("text").toString(), u"a"_s);
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {},
                      QPoint(static_cast<int>(field->width()) - 16, 16));
    EXPECT_EQ(field->property("text").toString(), QString());
    EXPECT_TRUE(field->hasActiveFocus());
    EXPECT_EQ(bench.warnings(), "");
}

TEST(Controls, SearchFieldIsKnownAsOne)
{
    Bench bench;
    auto *field = bench.show(u"SearchField { name: 'Filtrer' }"_s);
    ASSERT_NE(field, nullptr);
    EXPECT_TRUE(Bench::accessible(field)->state().searchEdit);
}

TEST(Controls, MenuIsAsWideAsItsWidestRow)
{
    Bench bench;
    auto *holder = bench.show(
        u"Item { property alias menu: m; PopupMenu { id: m; PopupMenuItem { text: 'Un' } "
        "PopupMenuSeparator {} PopupMenuItem { symbol: 'link'; text: 'Un titre bien plus long que "
        "les autres' } "
        "PopupMenu { title: 'Statut'; PopupMenuItem { text: 'Fait' } } } }"_s);
    ASSERT_NE(holder, nullptr) << bench.warnings();
    auto *menu = holder->property("menu").value<QObject *>();
    QMetaObject::invokeMethod(menu, "open");
    QQuickItem *row = nullptr;
    QMetaObject::invokeMethod(menu, "itemAt", Q_RETURN_ARG(QQuickItem *, row), Q_ARG(int, 2));
    ASSERT_NE(row, nullptr);
    EXPECT_GE(menu->property("width").toReal(), row->implicitWidth() + 10);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(Controls, MenuRowIsTriggeredOnceByReturnAndByAScreenReader)
{
    Bench bench;
    auto *holder = bench.show(u"Item { property alias menu: m; property alias row: r; "
                              "PopupMenu { id: m; PopupMenuItem { id: r; text: 'Copier' } } }"_s);
    ASSERT_NE(holder, nullptr) << bench.warnings();
    auto *menu = holder->property("menu").value<QObject *>();
    auto *row = holder->property("row").value<QQuickItem *>();
    QSignalSpy triggered(row, SIGNAL(triggered()));
    QMetaObject::invokeMethod(menu, "open");
    QTest::keyClick(&bench.window(), Qt::Key_Down);
    QTest::keyClick(&bench.window(), Qt::Key_Return);
    EXPECT_EQ(triggered.count(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !menu->property("visible").toBool(); }));
    QMetaObject::invokeMethod(menu, "open");
    Bench::accessible(row)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(triggered.count(), 2);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(Controls, ScreenReadersDoNotPressADisabledMenuRow)
{
    Bench bench;
    auto *row = bench.show(u"PopupMenuItem { text: 'Copier'; enabled: false }"_s);
    ASSERT_NE(row, nullptr) << bench.warnings();
    QSignalSpy triggered(row, SIGNAL(triggered()));
    Bench::accessible(row)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(triggered.count(), 0);
}

TEST(Controls, ScreenReadersDoNotChooseASegmentOfADisabledPicker)
{
    Bench bench;
    auto *picker = bench.show(
        u"SegmentedPicker { name: 'Vue'; choices: ['Liste', 'Tableau']; current: 0; enabled: false }"_s);
    ASSERT_NE(picker, nullptr) << bench.warnings();
    QSignalSpy chosen(picker, SIGNAL(chosen(int)));
    int segments = 0;
    for (int i = 0; i < Bench::accessible(picker)->childCount(); ++i) {
        auto *segment = Bench::accessible(picker)->child(i);
        if (segment->role() != QAccessible::RadioButton)
            continue;
        ++segments;
        segment->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        segment->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    }
    EXPECT_EQ(segments, 2);
    EXPECT_EQ(chosen.count(), 0);
}

TEST(Controls, SidebarRowShowsTheItemItIsGiven)
{
    Bench bench;
    auto *row = bench.show(
        u"SidebarRow { text: 'App mobile'; width: 200; leading: Rectangle { objectName: 'badge'; "
        "width: 16; height: 16 } }"_s);
    ASSERT_NE(row, nullptr);
    auto *badge = row->property("leading").value<QQuickItem *>();
    ASSERT_NE(badge, nullptr);
    ASSERT_NE(badge->parentItem(), nullptr);
    EXPECT_EQ(badge->mapToItem(row, QPointF(8, 8)).toPoint(), QPoint(8 + 9, 15));
}

TEST(Controls, TextThatDoesNotFitEndsInAnEllipsis)
{
    Bench bench;
    auto *label = bench.show(u"AppText { width: 40; text: 'Un titre trop long' }"_s);
    EXPECT_TRUE(label->property("truncated").toBool());
}
