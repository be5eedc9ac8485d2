#include "shell/about/About.h"
#include "shell/settings/SettingsFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class AboutSheet : public SettingsFixture
{
protected:
    void openByKeyboard()
    {
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
        settle();
        press(Qt::Key_F10);
        await(QAccessible::MenuItem, Title);
        for (int i = 0; i < 10 && !find(QAccessible::MenuItem, Title).state.focused; ++i)
            press(Qt::Key_Down);
        press(Qt::Key_Return);
        await(QAccessible::Dialog, Title);
    }
    /// The value of a row of the sheet.
    QString value(const QString &row)
    {
        return await(QAccessible::StaticText, row + u" : "_s).name.section(u" : "_s, 1);
    }

    static inline const QString Title = u"À propos de Velmora"_s;
};

TEST_F(AboutSheet, TheMenuShowsTheVersionAndEscapeClosesIt)
{
    openByKeyboard();
    find(QAccessible::StaticText, u"Version 1.3.2 (build 132)"_s);
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone(QAccessible::Dialog, Title));
    EXPECT_FALSE(About::shared().isShown());
}

TEST_F(AboutSheet, ReturnClosesItAndTheListHasTheKeyboardAgain)
{
    serve({u"MOB-1"_s});
    openOnDemo();
    desktop->setPrefersReducedMotion(true);
    settle();
    About::shared().show();
    await(QAccessible::Dialog, Title);
    EXPECT_TRUE(find(QAccessible::Button, u"Fermer"_s).state.focused);
    press(Qt::Key_Return);
    EXPECT_TRUE(isGone(QAccessible::Dialog, Title));
    press(Qt::Key_Down);
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
}

TEST_F(AboutSheet, ItTellsTheStartTheKeysAndTheMemoryOfThisRun)
{
    openByKeyboard();
    const auto isTime = [](const QString &text) { return text.endsWith(u"\u00A0ms"); };
    EXPECT_TRUE(isTime(value(u"Du lancement à la première image"_s)));
    EXPECT_TRUE(isTime(value(u"De la touche à l'image, la dernière"_s)));
    EXPECT_TRUE(isTime(value(u"De la touche à l'image, la plus lente"_s)));
    EXPECT_TRUE(value(u"Mémoire résidente"_s).endsWith(u"\u00A0Mo"));
}

TEST_F(AboutSheet, AKeyThatChangesTheWindowIsMeasured)
{
    serve({u"MOB-1"_s, u"MOB-2"_s});
    openOnDemo();
    settle();
    int measured = 0;
    QObject::connect(&About::shared(), &About::measured, &window(), [&] { ++measured; });
    press(Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([&] { return measured > 0; }));
}
