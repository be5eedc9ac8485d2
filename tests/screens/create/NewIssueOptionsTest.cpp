#include "screens/create/NewIssueOptions.h"

#include "screens/create/OpenForm.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using Kind = NewIssueOptions::Kind;

class NewIssueOptionsTest : public OpenForm
{
};

TEST_F(NewIssueOptionsTest, EveryProjectIsOfferedAndTheChosenOneIsSelected)
{
    EXPECT_EQ(titles(Kind::Project),
              (QStringList{sampleProject(u"MOB"_s).name, sampleProject(u"SUP"_s).name}));
    EXPECT_EQ(selected(Kind::Project), QStringList{sampleProject(u"MOB"_s).name});
}

TEST_F(NewIssueOptionsTest, TheTypesArriveWithTheDetailsOfTheProject)
{
    EXPECT_EQ(titles(Kind::Type), QStringList());
    NewIssueOptions types;
    types.setProperty("kind", Kind::Type);
    types.setForm(form.get());
    QSignalSpy changed(&types, &OptionSource::itemsChanged);
    answerProject();
    EXPECT_GT(changed.count(), 0);
    EXPECT_EQ(titles(Kind::Type), (QStringList{u"Epic"_s, u"Story"_s, u"Tâche"_s}));
    EXPECT_EQ(selected(Kind::Type), QStringList{u"Tâche"_s});
}

TEST_F(NewIssueOptionsTest, NobodyComesFirstThenTheUserThenTheOthersByName)
{
    answerProject();
    EXPECT_EQ(titles(Kind::Assignee),
              (QStringList{u"Non assigné"_s, u"Noam Tessier"_s, u"Ana MOB"_s, u"Zoé"_s}));
    EXPECT_EQ(selected(Kind::Assignee), QStringList{u"Non assigné"_s});
    choose(Kind::Assignee, u"Zoé"_s);
    EXPECT_EQ(selected(Kind::Assignee), QStringList{u"Zoé"_s});
    choose(Kind::Assignee, u"Non assigné"_s);
    EXPECT_EQ(form->issue().assignee, std::nullopt);
}

TEST_F(NewIssueOptionsTest, ThePrioritiesAreThoseOfTheSiteAndNoneIsSelectedAtFirst)
{
    EXPECT_EQ(titles(Kind::Priority), (QStringList{u"Haute"_s, u"Basse"_s}));
    EXPECT_EQ(selected(Kind::Priority), QStringList());
    choose(Kind::Priority, u"Basse"_s);
    EXPECT_EQ(selected(Kind::Priority), QStringList{u"Basse"_s});
}

TEST_F(NewIssueOptionsTest, LabelsAreThoseOfTheListAndTheChosenOnesSorted)
{
    Issue issue = sampleIssue(u"MOB-1"_s);
    issue.labels = {u"ios"_s, u"équipe"_s};
    reloadWith({issue});
    form->toggleLabel(u"facturation"_s);
    EXPECT_EQ(titles(Kind::Labels), (QStringList{u"équipe"_s, u"facturation"_s, u"ios"_s}));
    EXPECT_EQ(selected(Kind::Labels), QStringList{u"facturation"_s});
    choose(Kind::Labels, u"ios"_s);
    choose(Kind::Labels, u"facturation"_s);
    EXPECT_EQ(form->issue().labels, QStringList{u"ios"_s});
}

TEST_F(NewIssueOptionsTest, OnlyLabelsCanBeCreated)
{
    NewIssueOptions options;
    options.setForm(form.get());
    for (const auto kind : {Kind::Project, Kind::Type, Kind::Priority, Kind::Assignee}) {
        options.setProperty("kind", kind);
        EXPECT_FALSE(options.canCreate());
    }
    options.setProperty("kind", Kind::Labels);
    EXPECT_TRUE(options.canCreate());
    EXPECT_EQ(options.createLabel(u"api"_s), u"Créer l'étiquette « api »"_s);
    options.create(u"api"_s);
    options.create(u"api"_s);
    EXPECT_EQ(form->issue().labels, QStringList{u"api"_s});
}
