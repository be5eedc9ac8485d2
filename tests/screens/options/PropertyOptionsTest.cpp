#include "screens/options/PropertyOptions.h"

#include "state/AppStoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

class PropertyOptionsTest : public AppStoreFixture
{
protected:
    PropertyOptionsTest()
    {
        startSession();
        reloadWith({sampleIssue(u"MOB-1"_s), sampleIssue(u"MOB-2"_s, u"En cours"_s)});
        options.setStore(store.get());
        options.setKeys({u"MOB-1"_s});
    }

    QStringList titles()
    {
        QStringList list;
        for (const auto &item : options.items())
            list += item.title;
        return list;
    }
    QStringList labels(const QString &key) { return (*store->issue(key))->labels; }

    PropertyOptions options;
};

TEST_F(PropertyOptionsTest, EachKindSaysWhatItSearches)
{
    const std::pair<PickerKind, QString> placeholders[]{
        {PickerKind::Status, u"Statut…"_s},
        {PickerKind::Priority, u"Priorité…"_s},
        {PickerKind::Assignee, u"Assigner…"_s},
        {PickerKind::Labels, u"Ajouter des étiquettes…"_s}};
    for (const auto &[kind, placeholder] : placeholders) {
        options.setKind(kind);
        EXPECT_EQ(options.placeholder(), placeholder);
        EXPECT_EQ(options.canCreate(), kind == PickerKind::Labels);
    }
}

TEST_F(PropertyOptionsTest, TheItemsAreThoseOfTheStore)
{
    options.setKind(PickerKind::Status);
    EXPECT_EQ(options.items(), store->options(PickerKind::Status, {u"MOB-1"_s}));
    EXPECT_EQ(titles(), (QStringList{u"À faire"_s, u"En cours"_s}));
}

TEST_F(PropertyOptionsTest, AnItemIsCarriedOutByTheStore)
{
    QSignalSpy changed(&options, &OptionSource::itemsChanged);
    options.run(options.items().at(1));
    EXPECT_EQ((*store->issue(u"MOB-1"_s))->status.name(), u"En cours"_s);
    EXPECT_GE(changed.count(), 1);
}

TEST_F(PropertyOptionsTest, TheItemsFollowTheUsersOwnOpenIssuesToo)
{
    QSignalSpy changed(&options, &OptionSource::itemsChanged);
    service->issuesCalls.answerWith({sampleIssue(u"WEB-9"_s, u"En revue"_s)});
    const TaskResult<void> refreshed(store->refreshMyIssues());
    EXPECT_GE(changed.count(), 1);
    EXPECT_TRUE(titles().contains(u"En revue"_s));
}

TEST_F(PropertyOptionsTest, TheCreateRowNamesTheLabelBetweenGuillemets)
{
    EXPECT_EQ(options.createLabel(u"dette-tech"_s), u"Créer l'étiquette « dette-tech »"_s);
}

TEST_F(PropertyOptionsTest, ANewLabelGoesToTheEndOfEachIssueThatLacksIt)
{
    Issue first = sampleIssue(u"MOB-1"_s);
    first.labels = {u"zoo"_s};
    Issue second = sampleIssue(u"MOB-2"_s);
    second.labels = {u"auth"_s, u"zoo"_s};
    Issue third = sampleIssue(u"MOB-3"_s);
    third.labels = {u"Auth"_s};
    reloadWith({first, second, third});
    options.setKind(PickerKind::Labels);
    options.setKeys({u"MOB-1"_s, u"GONE-1"_s, u"MOB-2"_s, u"MOB-3"_s});

    options.create(u"auth"_s);

    EXPECT_EQ(labels(u"MOB-1"_s), (QStringList{u"zoo"_s, u"auth"_s}));
    EXPECT_EQ(labels(u"MOB-2"_s), (QStringList{u"auth"_s, u"zoo"_s})) << "it has it already";
    EXPECT_EQ(labels(u"MOB-3"_s), (QStringList{u"Auth"_s, u"auth"_s})) << "case tells labels apart";
}

TEST_F(PropertyOptionsTest, WithoutAStoreThereIsNothing)
{
    options.setStore(nullptr);
    EXPECT_TRUE(options.items().isEmpty());
    options.create(u"auth"_s);
    options.run({});
}
