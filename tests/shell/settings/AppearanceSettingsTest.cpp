#include "shell/settings/SettingsFixture.h"

#include <QColor>
#include <QTest>

using namespace Qt::StringLiterals;

class AppearancePage : public SettingsFixture
{
protected:
    void show()
    {
        choose(u"appearance"_s);
        serveIssues({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-2"_s, u"Terminé"_s)});
        openOnDemo();
        showSettings();
    }
    QString current(const QString &picker)
    {
        return here(QAccessible::ComboBox, picker).description;
    }
    /// Opens the picker by the keyboard and chooses the entry below the current one.
    void chooseNext(const QString &picker)
    {
        ASSERT_TRUE(tabTo(QAccessible::ComboBox, picker));
        pressHere(Qt::Key_Space);
        settleHere();
        pressHere(Qt::Key_Down);
        pressHere(Qt::Key_Return);
        settleHere();
    }
    bool isOn(const QString &name) { return here(QAccessible::CheckBox, name).state.checked; }
};

TEST_F(AppearancePage, ATileChangesTheAppearanceAtOnce)
{
    show();
    EXPECT_TRUE(here(QAccessible::RadioButton, u"Système"_s).state.checked);
    clickHere(QAccessible::RadioButton, u"Sombre"_s);
    EXPECT_EQ(store().appearance(), AppearanceMode::Dark);
    EXPECT_TRUE(token("dark").toBool());
    EXPECT_TRUE(here(QAccessible::RadioButton, u"Sombre"_s).state.checked);
    clickHere(QAccessible::RadioButton, u"Clair"_s);
    EXPECT_EQ(store().appearance(), AppearanceMode::Light);
    EXPECT_FALSE(token("dark").toBool());
}

TEST_F(AppearancePage, ASwatchChangesTheAccentAtOnceAndIsNamed)
{
    show();
    clickHere(QAccessible::RadioButton, u"Rose"_s);
    EXPECT_EQ(store().accentChoice(), AccentChoice::Pink);
    EXPECT_EQ(token("accentChoice").toInt(), int(AccentChoice::Pink));
    EXPECT_TRUE(here(QAccessible::RadioButton, u"Rose"_s).state.checked);
    const QStringList names{u"Indigo"_s, u"Bleu"_s, u"Violet"_s,  u"Rose"_s,
                            u"Orange"_s, u"Vert"_s, u"Graphite"_s};
    for (int i = 0; i < names.size(); ++i) {
        clickHere(QAccessible::RadioButton, names[i]);
        EXPECT_EQ(int(store().accentChoice()), i) << names[i].toStdString();
    }
}

TEST_F(AppearancePage, TilesAndSwatchesAreChosenByTheArrowKeys)
{
    show();
    ASSERT_TRUE(tabTo(QAccessible::RadioButton, u"Système"_s));
    pressHere(Qt::Key_Right);
    EXPECT_EQ(store().appearance(), AppearanceMode::Light);
    ASSERT_TRUE(tabTo(QAccessible::RadioButton, u"Indigo"_s));
    pressHere(Qt::Key_Right);
    pressHere(Qt::Key_Right);
    EXPECT_EQ(store().accentChoice(), AccentChoice::Purple);
    EXPECT_EQ(focusedHere(), u"Violet"_s);
}

TEST_F(AppearancePage, TheDensityIsChosenInASegmentedPicker)
{
    show();
    clickHere(QAccessible::RadioButton, u"Compacte"_s);
    EXPECT_EQ(store().density(), RowDensity::Compact);
    clickHere(QAccessible::RadioButton, u"Confortable"_s);
    EXPECT_EQ(store().density(), RowDensity::Comfortable);
}

TEST_F(AppearancePage, ThePickersChangeTheViewOfTheIssues)
{
    show();
    chooseNext(u"Regrouper par"_s);
    EXPECT_EQ(store().grouping(), Grouping::Assignee);
    EXPECT_EQ(current(u"Regrouper par"_s), u"Assigné"_s);
    chooseNext(u"Trier par"_s);
    EXPECT_EQ(store().ordering(), Ordering::Updated);
    EXPECT_EQ(current(u"Trier par"_s), u"Mise à jour"_s);
    chooseNext(u"Disposition"_s);
    EXPECT_EQ(store().layout(), LayoutMode::Board);
    EXPECT_EQ(current(u"Disposition"_s), u"Tableau"_s);
}

TEST_F(AppearancePage, AChangeOfAControlTakesEffectAtOnceInTheMainWindow)
{
    show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return rowsShown().size() == 2; }));
    ASSERT_TRUE(tabTo(QAccessible::CheckBox, u"Afficher les tickets terminés"_s));
    pressHere(Qt::Key_Space);
    EXPECT_FALSE(store().showCompleted());
    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown() == QStringList{u"MOB-1"_s}; }));
}

TEST_F(AppearancePage, EachOfTheSevenTogglesChangesItsOwnColumn)
{
    show();
    const std::array columns{std::pair(u"Clé"_s, &DisplayProperties::key),
                             std::pair(u"Priorité"_s, &DisplayProperties::priority),
                             std::pair(u"Type"_s, &DisplayProperties::type),
                             std::pair(u"Étiquettes"_s, &DisplayProperties::labels),
                             std::pair(u"Assigné"_s, &DisplayProperties::assignee),
                             std::pair(u"Échéance"_s, &DisplayProperties::dueDate),
                             std::pair(u"Date de mise à jour"_s, &DisplayProperties::updated)};
    DisplayProperties expected = store().display();
    for (const auto &[name, member] : columns) {
        ASSERT_TRUE(tabTo(QAccessible::CheckBox, name)) << name.toStdString();
        EXPECT_EQ(isOn(name), expected.*member);
        pressHere(Qt::Key_Space);
        expected.*member = !(expected.*member);
        EXPECT_EQ(store().display(), expected) << name.toStdString();
        EXPECT_EQ(isOn(name), expected.*member);
    }
}

TEST_F(AppearancePage, AChangeInTheMainWindowIsShownHere)
{
    show();
    store().setLayout(LayoutMode::Board);
    store().setAppearance(AppearanceMode::Dark);
    store().setShowCompleted(false);
    EXPECT_EQ(current(u"Disposition"_s), u"Tableau"_s);
    EXPECT_TRUE(here(QAccessible::RadioButton, u"Sombre"_s).state.checked);
    EXPECT_FALSE(isOn(u"Afficher les tickets terminés"_s));
    store().setShowCompleted(true);
    EXPECT_TRUE(isOn(u"Afficher les tickets terminés"_s));
}

TEST_F(AppearancePage, TheAccentFollowsTheChoiceWhileTheMainWindowIsClosed)
{
    show();
    window().close();
    clickHere(QAccessible::RadioButton, u"Vert"_s);
    EXPECT_EQ(token("accentChoice").toInt(), int(AccentChoice::Green));
}
