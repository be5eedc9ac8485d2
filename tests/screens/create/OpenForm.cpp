#include "screens/create/OpenForm.h"

using namespace Qt::StringLiterals;

namespace {

IssueType type(const QString &name, bool isSubtask = false, qint64 level = 0)
{
    return {.id = u"id "_s + name, .name = name, .isSubtask = isSubtask, .hierarchyLevel = level};
}

Project detailed(Project project)
{
    if (project.key == u"MOB"_s)
        project.issueTypes = {type(u"Epic"_s, false, 1), type(u"Story"_s), type(u"Tâche"_s)};
    else
        project.issueTypes = {type(u"Sous-tâche"_s, true, -1)};
    return project;
}

} // namespace

OpenForm::OpenForm()
{
    answerEverything();
    service->projectsCalls.answerWith({sampleProject(u"MOB"_s), sampleProject(u"SUP"_s)});
    service->currentUserCalls.answerWith(sampleUser(u"me"_s, u"Noam Tessier"_s));
    service->prioritiesCalls.answerWith(
        {IssuePriority(u"1"_s, u"High"_s), IssuePriority(u"2"_s, u"Low"_s)});
    const TaskResult<void> started(store->startDemo());
    holdEverything();
    store->setIsCreating(true);
    form->setStore(store.get());
    form->begin();
}

OpenForm::~OpenForm()
{
    options.setForm(nullptr);
    form.reset();
}

void OpenForm::answerProject()
{
    const QString key = form->issue().projectKey;
    service->statusesCalls.last().finish({});
    service->assignableUsersCalls.last().finish(
        {sampleUser(u"zoe"_s, u"Zoé"_s), sampleUser(u"ana"_s, u"Ana "_s + key)});
    service->projectCalls.last().finish(detailed(sampleProject(key)));
}

QList<OptionItem> OpenForm::items(NewIssueOptions::Kind kind)
{
    options.setForm(form.get());
    options.setProperty("kind", kind);
    return options.items();
}

QStringList OpenForm::titles(NewIssueOptions::Kind kind)
{
    QStringList list;
    for (const OptionItem &item : items(kind))
        list.append(item.title);
    return list;
}

QStringList OpenForm::selected(NewIssueOptions::Kind kind)
{
    QStringList list;
    for (const OptionItem &item : items(kind)) {
        if (item.isSelected)
            list.append(item.title);
    }
    return list;
}

void OpenForm::choose(NewIssueOptions::Kind kind, const QString &title)
{
    for (const OptionItem &item : items(kind)) {
        if (item.title == title)
            return options.run(item);
    }
    FAIL() << title.toStdString() << " is not offered";
}
