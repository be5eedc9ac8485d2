#include "screens/issues/Picker.h"

#include "state/AppStoreFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

OptionItem option(const QString &title, const std::optional<QString> &subtitle = {})
{
    return {.id = title, .title = title, .subtitle = subtitle};
}

QStringList titles(const QList<PickerRow> &rows)
{
    QStringList list;
    for (const auto &row : rows)
        list += row.option.title;
    return list;
}

KeyPress press(Qt::Key key, const QString &text = {}, Qt::KeyboardModifiers modifiers = {})
{
    return KeyPress::make(key, 0, text, modifiers);
}

} // namespace

TEST(PickerRows, AQueryOfBlanksIsAnEmptyQuery)
{
    EXPECT_EQ(titles(pickerRows({option(u"Un"_s), option(u"Deux"_s)}, u" \n "_s)),
              (QStringList{u"Un"_s, u"Deux"_s}));
}

TEST(PickerRows, TitlesAreFoundWithoutCaseAndAccentsInTheirOrder)
{
    const QList<OptionItem> options{option(u"Terminé"_s), option(u"En cours"_s),
                                    option(u"Termes"_s)};
    EXPECT_EQ(titles(pickerRows(options, u" TERME"_s)), (QStringList{u"Termes"_s}));
    EXPECT_EQ(titles(pickerRows(options, u"terminé"_s)), (QStringList{u"Terminé"_s}));
    EXPECT_EQ(titles(pickerRows(options, u"TERM"_s)), (QStringList{u"Terminé"_s, u"Termes"_s}));
}

TEST(PickerRows, SubtitlesAreNotSearched)
{
    EXPECT_TRUE(pickerRows({option(u"Ada"_s, u"ada@exemple.fr"_s)}, u"exemple"_s).isEmpty());
}

TEST(NewLabel, BlanksBecomeHyphensUnlessTheWordsAreALabelAlready)
{
    EXPECT_EQ(newLabel({}, u" bug fix "_s), u"bug-fix"_s);
    EXPECT_EQ(newLabel({option(u"bug-fix"_s)}, u"bug"_s), u"bug"_s);
    EXPECT_EQ(newLabel({option(u"Auth"_s)}, u"auth"_s), std::nullopt);
    EXPECT_EQ(newLabel({}, u"  "_s), std::nullopt);
}

TEST(PickerCaps, ThreeKeysAreShownAndTheOthersCounted)
{
    EXPECT_EQ(pickerCaps({u"A-1"_s}), QStringList{u"A-1"_s});
    EXPECT_EQ(pickerCaps({u"A-1"_s, u"A-2"_s, u"A-3"_s}),
              (QStringList{u"A-1"_s, u"A-2"_s, u"A-3"_s}));
    EXPECT_EQ(pickerCaps({u"A-1"_s, u"A-2"_s, u"A-3"_s, u"A-4"_s, u"A-5"_s}),
              (QStringList{u"A-1"_s, u"A-2"_s, u"A-3"_s, u"+2"_s}));
}

class PickerTest : public AppStoreFixture
{
protected:
    PickerTest()
    {
        startSession();
        reloadWith({sampleIssue(u"MOB-1"_s), sampleIssue(u"MOB-2"_s, u"En cours"_s)});
        picker.setStore(store.get());
    }

    void open(PickerKind kind) { store->setPalette(PaletteMode::picker(kind, {u"MOB-1"_s})); }
    QStringList shown() { return titles(picker.rows()->rows()); }
    QString status() { return (*store->issue(u"MOB-1"_s))->status.name(); }

    Picker picker;
};

TEST_F(PickerTest, ItShowsTheOptionsOfTheStore)
{
    const QAbstractItemModelTester tester(picker.rows(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_FALSE(picker.isOpen());
    open(PickerKind::Status);
    EXPECT_TRUE(picker.isOpen());
    EXPECT_EQ(shown(), (QStringList{u"À faire"_s, u"En cours"_s}));
    EXPECT_EQ(picker.placeholder(), u"Statut…"_s);
    const auto first = picker.rows()->index(0);
    EXPECT_EQ(first.data(PickerModel::IsSelectedRole), true);
    EXPECT_EQ(first.data(PickerModel::ShortcutRole), u"1"_s);
    EXPECT_EQ(first.data(PickerModel::IconRole).value<OptionIconValue>().status().name(),
              u"À faire"_s);
}

TEST_F(PickerTest, TheCommandsOfThePaletteAreNoPicker)
{
    store->togglePalette();
    EXPECT_FALSE(picker.isOpen());
}

TEST_F(PickerTest, ADigitPicksItsRowWhileTheQueryIsEmpty)
{
    open(PickerKind::Status);
    EXPECT_TRUE(picker.handle(press(Qt::Key_2, u"2"_s)));
    EXPECT_EQ(status(), u"En cours"_s);
    EXPECT_FALSE(store->palette());
}

TEST_F(PickerTest, WithAQueryADigitIsTyped)
{
    open(PickerKind::Status);
    picker.setQuery(u"e"_s);
    EXPECT_FALSE(picker.handle(press(Qt::Key_2, u"2"_s)));
    EXPECT_EQ(status(), u"À faire"_s);
}

TEST_F(PickerTest, ADigitWithoutARowIsPassedOn)
{
    open(PickerKind::Status);
    EXPECT_FALSE(picker.handle(press(Qt::Key_9, u"9"_s)));
    EXPECT_FALSE(picker.handle(press(Qt::Key_2, u"2"_s, Qt::ControlModifier)));
    EXPECT_TRUE(store->palette());
}

TEST_F(PickerTest, TheHighlightStopsAtBothEnds)
{
    open(PickerKind::Status);
    EXPECT_TRUE(picker.handle(press(Qt::Key_Up)));
    EXPECT_EQ(picker.highlighted(), 0);
    picker.handle(press(Qt::Key_Down));
    picker.handle(press(Qt::Key_Down));
    EXPECT_EQ(picker.highlighted(), 1);
}

TEST_F(PickerTest, ANewQueryTakesTheHighlightToTheFirstRow)
{
    open(PickerKind::Status);
    picker.handle(press(Qt::Key_Down));
    picker.setQuery(u"e"_s);
    EXPECT_EQ(picker.highlighted(), 0);
}

TEST_F(PickerTest, WithoutRowsDownStaysAndReturnDoesNothing)
{
    open(PickerKind::Status);
    picker.setQuery(u"introuvable"_s);
    ASSERT_TRUE(picker.isEmpty());
    picker.handle(press(Qt::Key_Down));
    EXPECT_EQ(picker.highlighted(), 0);
    EXPECT_TRUE(picker.handle(press(Qt::Key_Return)));
    EXPECT_TRUE(store->palette());
}

TEST_F(PickerTest, EscapeClearsTheQueryBeforeItCloses)
{
    open(PickerKind::Status);
    picker.setQuery(u"e"_s);
    EXPECT_TRUE(picker.handle(press(Qt::Key_Escape)));
    EXPECT_EQ(picker.query(), QString());
    EXPECT_TRUE(picker.isOpen());
    EXPECT_TRUE(picker.handle(press(Qt::Key_Escape)));
    EXPECT_FALSE(picker.isOpen());
}

TEST_F(PickerTest, PickingALabelLeavesThePickerOpenAndShowsTheCheckMark)
{
    Issue labelled = sampleIssue(u"MOB-2"_s);
    labelled.labels = {u"auth"_s};
    reloadWith({sampleIssue(u"MOB-1"_s), labelled});
    open(PickerKind::Labels);
    ASSERT_EQ(shown(), QStringList{u"auth"_s});

    picker.activate(0);

    EXPECT_TRUE(picker.isOpen());
    EXPECT_EQ((*store->issue(u"MOB-1"_s))->labels, QStringList{u"auth"_s});
    EXPECT_EQ(picker.rows()->index(0).data(PickerModel::IsSelectedRole), true);
}

TEST_F(PickerTest, ANewLabelIsMadeWhereItIsMissingAndThePickerStays)
{
    Issue labelled = sampleIssue(u"MOB-2"_s);
    labelled.labels = {u"bug-fix"_s};
    reloadWith({sampleIssue(u"MOB-1"_s), labelled});
    store->setPalette(
        PaletteMode::picker(PickerKind::Labels, {u"MOB-1"_s, u"GONE-1"_s, u"MOB-2"_s}));
    picker.setQuery(u"bug fix"_s);
    ASSERT_EQ(shown(), QStringList{u"Créer l'étiquette « bug-fix »"_s});

    EXPECT_TRUE(picker.handle(press(Qt::Key_Return)));

    EXPECT_EQ((*store->issue(u"MOB-1"_s))->labels, QStringList{u"bug-fix"_s});
    EXPECT_EQ((*store->issue(u"MOB-2"_s))->labels, QStringList{u"bug-fix"_s});
    EXPECT_TRUE(picker.isOpen());
    EXPECT_EQ(picker.query(), QString());
    EXPECT_EQ(shown(), QStringList{u"bug-fix"_s});
}

TEST_F(PickerTest, OnlyLabelsAreMade)
{
    open(PickerKind::Status);
    picker.setQuery(u"nouveau"_s);
    EXPECT_TRUE(picker.isEmpty());
}

TEST_F(PickerTest, ANewPickerBeginsAnew)
{
    open(PickerKind::Status);
    picker.setQuery(u"e"_s);
    picker.handle(press(Qt::Key_Down));
    open(PickerKind::Priority);
    EXPECT_EQ(picker.query(), QString());
    EXPECT_EQ(picker.highlighted(), 0);
    EXPECT_EQ(picker.title(), u"Changer la priorité"_s);
}

TEST_F(PickerTest, ItsRowsStayWhenItCloses)
{
    open(PickerKind::Status);
    QSignalSpy closed(&picker, &Picker::isOpenChanged);
    picker.close();
    EXPECT_EQ(closed.count(), 1);
    EXPECT_EQ(shown().size(), 2);
    picker.activate(1);
    EXPECT_EQ(status(), u"À faire"_s);
}
