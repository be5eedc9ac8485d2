#include "PaletteFixture.h"

using namespace Qt::StringLiterals;

class PickerModeTest : public PaletteFixture
{
protected:
    PickerModeTest()
    {
        Issue labelled = sampleIssue(u"MOB-2"_s, u"En cours"_s);
        labelled.labels = {u"auth"_s};
        reloadWith({sampleIssue(u"MOB-1"_s), labelled});
    }
};

TEST_F(PickerModeTest, ItShowsTheOptionsOfTheStore)
{
    openPicker(PickerKind::Status, {u"MOB-1"_s});
    EXPECT_EQ(titles(), (QStringList{u"À faire"_s, u"En cours"_s}));
    EXPECT_TRUE(sectionTitles().isEmpty());
    EXPECT_EQ(palette.placeholder(), u"Statut…"_s);
    EXPECT_TRUE(palette.rows().first().option.isSelected);
}

TEST_F(PickerModeTest, PickingALabelKeepsItOpenAndShowsTheCheckMark)
{
    openPicker(PickerKind::Labels, {u"MOB-1"_s});
    ASSERT_EQ(titles(), QStringList{u"auth"_s});
    palette.activate(0);
    EXPECT_TRUE(palette.isOpen());
    EXPECT_EQ(known(u"MOB-1"_s).labels, QStringList{u"auth"_s});
    EXPECT_TRUE(palette.rows().first().option.isSelected);
}

TEST_F(PickerModeTest, ANewLabelIsAppendedWhereItIsMissingAndTheQueryCleared)
{
    openPicker(PickerKind::Labels, {u"GONE-1"_s, u"MOB-2"_s, u"MOB-1"_s});
    palette.setQuery(u"bug fix"_s);
    ASSERT_EQ(titles(), QStringList{u"Créer l'étiquette « bug-fix »"_s});
    EXPECT_TRUE(press(Qt::Key_Return));
    EXPECT_EQ(known(u"MOB-1"_s).labels, QStringList{u"bug-fix"_s});
    EXPECT_EQ(known(u"MOB-2"_s).labels, (QStringList{u"auth"_s, u"bug-fix"_s}));
    EXPECT_TRUE(palette.isOpen());
    EXPECT_EQ(palette.query(), QString());
    EXPECT_EQ(titles(), (QStringList{u"auth"_s, u"bug-fix"_s}));
}

TEST_F(PickerModeTest, AnIssueThatHoldsTheNewLabelIsNotSentAgain)
{
    store->setLabels({u"bug-fix"_s}, u"MOB-1"_s);
    const auto sent = service->updateCalls.count();
    store->addLabel(u"bug-fix"_s, {u"MOB-1"_s});
    EXPECT_EQ(service->updateCalls.count(), sent);
}

TEST_F(PickerModeTest, AFreshListOfOptionsShowsAtOnce)
{
    openPicker(PickerKind::Labels, {u"MOB-1"_s});
    Issue other = sampleIssue(u"MOB-3"_s);
    other.labels = {u"ios"_s};
    reloadWith({sampleIssue(u"MOB-1"_s), other});
    EXPECT_EQ(titles(), QStringList{u"ios"_s});
}

TEST_F(PickerModeTest, AnotherPickerBeginsAnew)
{
    openPicker(PickerKind::Status, {u"MOB-1"_s});
    palette.setQuery(u"e"_s);
    press(Qt::Key_Down);
    openPicker(PickerKind::Priority, {u"MOB-1"_s});
    EXPECT_EQ(palette.query(), QString());
    EXPECT_EQ(palette.highlighted(), 0);
    EXPECT_EQ(palette.title(), u"Changer la priorité"_s);
}
