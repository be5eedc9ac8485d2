#include "app/WindowFixture.h"

#include <QQuickItem>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class SelectionBar : public WindowFixture
{
protected:
    SelectionBar()
    {
        Preferences(preferencesPath).setText(u"ordering"_s, u"key"_s);
        serve({u"MOB-1"_s, u"MOB-2"_s, u"MOB-3"_s});
        service->assignCalls.answerWith();
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
    }

    /// The numbers that the bar shows, each as one text.
    QStringList numbersShown()
    {
        auto *bar = barIn(window().contentItem());
        return bar ? numbersIn(*bar) : QStringList();
    }
    static QQuickItem *barIn(QQuickItem *item)
    {
        if (QByteArray(item->metaObject()->className()).startsWith("SelectionBar"))
            return item;
        for (auto *child : item->childItems()) {
            if (auto *bar = barIn(child))
                return bar;
        }
        return nullptr;
    }
    /// The number of buttons with a text that the bar has, visible or not.
    qsizetype actionCount()
    {
        const auto *bar = barIn(window().contentItem());
        const auto isAction = [](const QObject *object) {
            return QByteArray(object->metaObject()->className()).startsWith("SelectionAction");
        };
        const auto objects = bar ? bar->findChildren<QObject *>() : QObjectList();
        return std::ranges::count_if(objects, isAction);
    }
    static QStringList numbersIn(const QQuickItem &item)
    {
        static const QRegularExpression number(u"^\\d+"_s);
        QStringList numbers;
        if (item.inherits("QQuickText") && item.isVisible())
            numbers += number.match(item.property("text").toString()).capturedTexts();
        for (const auto *child : item.childItems())
            numbers += numbersIn(*child);
        return numbers;
    }
};

TEST_F(SelectionBar, ItComesWithTheFirstCheckedIssueAndGoesWithTheLast)
{
    EXPECT_TRUE(spokenIn(window(), QAccessible::ToolBar).isEmpty());
    press(Qt::Key_Down);
    press(Qt::Key_X);
    await(QAccessible::ToolBar, u"1 sélectionné"_s);
    press(Qt::Key_Down, Qt::ShiftModifier);
    await(QAccessible::ToolBar, u"2 sélectionnés"_s);

    press(Qt::Key_Escape);

    EXPECT_TRUE(isGone(QAccessible::ToolBar, {}));
    EXPECT_EQ(store().focusedKey(), u"MOB-2"_s);
}

TEST_F(SelectionBar, ItsContentIsCreatedOnceAtTheFirstCheckedIssue)
{
    EXPECT_EQ(actionCount(), 0);
    press(Qt::Key_Down);
    press(Qt::Key_X);
    await(QAccessible::ToolBar, u"1 sélectionné"_s);
    EXPECT_EQ(actionCount(), 5);

    press(Qt::Key_Escape);

    EXPECT_TRUE(isGone(QAccessible::ToolBar, {}));
    EXPECT_EQ(actionCount(), 5);
}

TEST_F(SelectionBar, ItsCrossChecksNothingAnyMore)
{
    store().setChecked({u"MOB-1"_s, u"MOB-3"_s});
    click(await(QAccessible::Button, u"Désélectionner"_s));

    EXPECT_TRUE(store().checked().isEmpty());
}

TEST_F(SelectionBar, EachActionOpensItsPickerForTheCheckedIssues)
{
    const QList<std::pair<QString, QString>> actions{
        {u"Statut"_s, u"Statut…"_s},
        {u"Priorité"_s, u"Priorité…"_s},
        {u"Assigner"_s, u"Assigner…"_s},
        {u"Étiquettes"_s, u"Ajouter des étiquettes…"_s}};
    store().setChecked({u"MOB-1"_s, u"MOB-3"_s});
    for (const auto &[title, placeholder] : actions) {
        const auto buttons = spokenIn(window(), QAccessible::Button, title);
        ASSERT_FALSE(buttons.isEmpty());
        click(buttons.constLast());
        await(QAccessible::EditableText, placeholder);
        ASSERT_TRUE(store().palette() && store().palette()->asPicker());
        EXPECT_EQ(store().palette()->asPicker()->keys, (QStringList{u"MOB-1"_s, u"MOB-3"_s}));
        store().closePalette();
        EXPECT_TRUE(isGone(QAccessible::EditableText, placeholder));
    }
}

TEST_F(SelectionBar, CopyCopiesTheKeysInOrder)
{
    store().setChecked({u"MOB-3"_s, u"MOB-1"_s});
    click(await(QAccessible::Button, u"Copier"_s));

    EXPECT_EQ(lastCopied(), u"MOB-1, MOB-3"_s);
    await(QAccessible::Notification, u"Clés copié"_s);
}

TEST_F(SelectionBar, AReloadTakesIssuesThatWentOutOfTheCount)
{
    store().setChecked({u"MOB-1"_s, u"MOB-3"_s});
    await(QAccessible::ToolBar, u"2 sélectionnés"_s);

    serve({u"MOB-1"_s, u"MOB-2"_s});
    reload();

    await(QAccessible::ToolBar, u"1 sélectionné"_s);
}

TEST_F(SelectionBar, CheckingOneRowMakesEveryRowsCheckBoxVisible)
{
    // The pixel where the box's left edge is drawn, in a row that is neither hovered nor checked.
    const auto row = await(QAccessible::ListItem, u"MOB-3,"_s);
    const QPoint edge(row.box.left() + 12, row.box.center().y());
    const auto colorAt = [&](const QPoint &point) {
        return window().grabWindow().pixelColor(point);
    };
    const QColor plane = colorAt(edge);

    store().setChecked({u"MOB-1"_s});

    EXPECT_TRUE(QTest::qWaitFor([&] { return colorAt(edge) != plane; }));
}

TEST_F(SelectionBar, TheInvisibleCheckBoxOfARowCanBeClicked)
{
    click(find(QAccessible::CheckBox, u"Sélectionner MOB-2"_s));

    EXPECT_EQ(store().checked(), QSet<QString>{u"MOB-2"_s});
    EXPECT_EQ(store().inspectorKey(), std::nullopt);
}

TEST_F(SelectionBar, TheNumberRollsFromItsOldValueToTheNew)
{
    desktop->setPrefersReducedMotion(false);
    store().setChecked({u"MOB-1"_s});
    ASSERT_TRUE(QTest::qWaitFor([&] { return numbersShown() == QStringList{u"1"_s}; }));

    store().setChecked({u"MOB-1"_s, u"MOB-2"_s});

    EXPECT_TRUE(QTest::qWaitFor([&] { return numbersShown() == QStringList{u"1"_s, u"2"_s}; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return numbersShown() == QStringList{u"2"_s}; }));
}

TEST_F(SelectionBar, TheNumberDoesNotRollForWhoWantsLessMotion)
{
    store().setChecked({u"MOB-1"_s});
    ASSERT_TRUE(QTest::qWaitFor([&] { return numbersShown() == QStringList{u"1"_s}; }));

    store().setChecked({u"MOB-1"_s, u"MOB-2"_s});

    EXPECT_EQ(numbersShown(), QStringList{u"2"_s});
}
