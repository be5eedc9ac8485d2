#include "app/WindowFixture.h"

#include <QTest>

#include <array>

using namespace Qt::StringLiterals;

/// Presses on the parts of rows, cards and headers.
class Presses : public WindowFixture
{
protected:
    Presses()
    {
        Preferences(preferencesPath).setText(u"ordering"_s, u"key"_s);
        serveIssues({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-2"_s),
                     issueWithKey(u"MOB-3"_s, u"En cours"_s)});
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
        settle();
    }

    /// The part with this role and name in the row or card of the issue.
    QRect part(const QString &key, QAccessible::Role role, const QString &name)
    {
        const auto row = await(QAccessible::ListItem, key + u',');
        for (const auto &found : spokenIn(window(), role, name)) {
            if (row.box.contains(found.box.center()))
                return found.box;
        }
        ADD_FAILURE() << "no " << name.toStdString() << " in " << key.toStdString();
        return {};
    }
    QRect status(const QString &key) { return part(key, QAccessible::Button, u"Statut :"_s); }
    QRect check(const QString &key)
    {
        return part(key, QAccessible::CheckBox, u"Sélectionner "_s + key);
    }
    void clickAt(QPoint place) { QTest::mouseClick(&window(), Qt::LeftButton, {}, place); }
    bool opensPicker(QPoint place, const QString &placeholder)
    {
        clickAt(place);
        const bool opened = QTest::qWaitFor(
            [&] { return !spokenIn(window(), QAccessible::EditableText, placeholder).isEmpty(); });
        press(Qt::Key_Escape);
        return isGone(QAccessible::Dialog, {}) && opened;
    }
    bool isPicking() { return !spokenIn(window(), QAccessible::Dialog).isEmpty(); }
    int lightnessAt(QPoint place)
    {
        settle();
        return window().grabWindow().pixelColor(place).lightness();
    }
    /// The lightness of a pixel without the pointer, under the pointer, and pressed by it.
    std::array<int, 3> looks(QPoint pixel, QPoint pointer)
    {
        std::array<int, 3> found{lightnessAt(pixel)};
        QTest::mouseMove(&window(), pointer);
        found[1] = lightnessAt(pixel);
        QTest::mousePress(&window(), Qt::LeftButton, {}, pointer);
        found[2] = lightnessAt(pixel);
        QTest::mouseRelease(&window(), Qt::LeftButton, {}, pointer);
        return found;
    }
    static void expectDarker(const std::array<int, 3> &looks)
    {
        EXPECT_LT(looks[1], looks[0]) << "under the pointer";
        EXPECT_LT(looks[2], looks[1]) << "pressed";
    }
};

TEST_F(Presses, ACellIsHitUpToItsEdges)
{
    const QRect cell = status(u"MOB-2"_s);
    ASSERT_EQ(cell.size(), QSize(22, 22));

    EXPECT_TRUE(opensPicker(cell.topLeft(), u"Statut…"_s));
    EXPECT_TRUE(opensPicker(cell.bottomRight(), u"Statut…"_s));
    EXPECT_EQ(store().focusedKey(), std::nullopt);
}

TEST_F(Presses, AboveBelowAndBesideACellTheRowIsHit)
{
    const QRect cell = status(u"MOB-1"_s);
    clickAt({cell.center().x(), cell.top() - 1});
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);

    clickAt({status(u"MOB-2"_s).center().x(), status(u"MOB-2"_s).bottom() + 1});
    EXPECT_EQ(store().focusedKey(), u"MOB-2"_s);

    clickAt({status(u"MOB-3"_s).right() + 1, status(u"MOB-3"_s).center().y()});
    EXPECT_EQ(store().focusedKey(), u"MOB-3"_s);
    EXPECT_FALSE(isPicking());
}

TEST_F(Presses, ACheckBoxIsHitUpToTheEdgesOfItsArea)
{
    const QRect area = check(u"MOB-2"_s);
    ASSERT_EQ(area.size(), QSize(22, 22));

    clickAt(area.topLeft());
    EXPECT_TRUE(store().checked().contains(u"MOB-2"_s));
    clickAt(area.bottomRight());
    EXPECT_FALSE(store().checked().contains(u"MOB-2"_s));
    EXPECT_EQ(store().focusedKey(), std::nullopt) << "a click on the box is none on the row";

    clickAt(area.topLeft() - QPoint(0, 1));
    EXPECT_FALSE(store().checked().contains(u"MOB-2"_s));
    EXPECT_EQ(store().focusedKey(), u"MOB-2"_s);
}

TEST_F(Presses, ACellOfACardIsHitExactlyWithinItsEdges)
{
    store().setLayout(LayoutMode::Board);
    const QRect cell = part(u"MOB-1"_s, QAccessible::Button, u"Priorité :"_s);
    EXPECT_TRUE(opensPicker(cell.topLeft(), u"Priorité…"_s));
    EXPECT_TRUE(opensPicker(cell.bottomRight(), u"Priorité…"_s));
    EXPECT_EQ(store().focusedKey(), std::nullopt);

    clickAt(cell.bottomRight() + QPoint(1, 0));
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
    EXPECT_FALSE(isPicking());
}

TEST_F(Presses, ACellThatThePressLeavesPicksNothing)
{
    const QPoint edge = status(u"MOB-1"_s).topLeft();
    QTest::mousePress(&window(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(&window(), edge - QPoint(0, 2));
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, edge - QPoint(0, 2));
    settle();

    EXPECT_FALSE(isPicking());
    EXPECT_EQ(store().focusedKey(), std::nullopt);
}

TEST_F(Presses, ACellLooksHoveredAndPressed)
{
    const QRect cell = status(u"MOB-2"_s);
    const QPoint pixel(cell.left() + 3, cell.center().y());
    QTest::mouseMove(&window(), {cell.right() + 60, cell.center().y()});

    expectDarker(looks(pixel, cell.center()));
}

TEST_F(Presses, ACellOfACardLooksHoveredAndPressed)
{
    store().setLayout(LayoutMode::Board);
    const QRect cell = part(u"MOB-2"_s, QAccessible::Button, u"Priorité :"_s);

    expectDarker(looks({cell.left() + 3, cell.center().y()}, cell.center()));
}

TEST_F(Presses, ACheckBoxLooksHoveredAndPressed)
{
    const QRect area = check(u"MOB-2"_s);
    QTest::mouseMove(&window(), {area.right() + 400, area.center().y()});

    expectDarker(looks(area.center(), area.center()));
}

TEST_F(Presses, AHeaderLooksHoveredAndPressed)
{
    const QRect row = await(QAccessible::ListItem, u"MOB-1,"_s).box;
    const QPoint header(row.center().x(), row.top() - 10);

    expectDarker(looks(header, header + QPoint(40, 0)));
    EXPECT_TRUE(isGone(QAccessible::ListItem, u"MOB-1,"_s)) << "the click folds the group";
}

TEST_F(Presses, AnActionOfTheSelectionBarLooksHoveredAndPressed)
{
    store().setChecked({u"MOB-1"_s});
    const QRect action = await(QAccessible::Button, u"Copier"_s).box;

    expectDarker(looks({action.left() + 8, action.center().y()}, action.center()));
}

TEST_F(Presses, TheButtonThatClearsTheFiltersLooksHoveredAndPressed)
{
    auto filters = store().filters();
    filters.statuses.insert(issueWithKey(u"MOB-1"_s).status.groupKey());
    store().setFilters(filters);
    const QRect button = await(QAccessible::Button, u"Tout effacer"_s).box;

    expectDarker(looks({button.left() + 1, button.center().y()}, button.center()));
}

TEST_F(Presses, ADragOfARowThatIsNotDroppedLeavesTheNextClickAlone)
{
    const QPoint start = await(QAccessible::ListItem, u"MOB-1,"_s).box.center();
    QTest::mousePress(&window(), Qt::LeftButton, {}, start);
    for (int step = 1; step <= 4; ++step)
        QTest::mouseMove(&window(), start + QPoint(0, 10 * step));
    settle();
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, start + QPoint(0, 40));
    EXPECT_EQ(store().focusedKey(), std::nullopt) << "a drag is no click";

    clickAt(await(QAccessible::ListItem, u"MOB-3,"_s).box.center());
    EXPECT_EQ(store().focusedKey(), u"MOB-3"_s);
}
