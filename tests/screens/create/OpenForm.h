#pragma once

#include "screens/create/NewIssueForm.h"
#include "screens/create/NewIssueOptions.h"
#include "state/AppStoreFixture.h"

/// A form on a session with two projects: MOB with the types Epic, Story and Tâche, SUP with sub-tasks only.
class OpenForm : public AppStoreFixture
{
protected:
    OpenForm();
    /// Before the scripted calls that the form waits for.
    ~OpenForm() override;

    /// Answers the requests for the details of the form's project.
    void answerProject();
    /// The titles of the options of a chip.
    QStringList titles(NewIssueOptions::Kind kind);
    /// The titles of the selected ones.
    QStringList selected(NewIssueOptions::Kind kind);
    void choose(NewIssueOptions::Kind kind, const QString &title);
    IssueDraft sent() { return service->createCalls.last().argument(); }
    /// Where forms of the present session keep their text.
    AbandonedPlace place()
    {
        return AbandonedTexts::of(*store).place(AbandonedTexts::Kind::NewIssue);
    }
    /// The title of the abandoned text; empty without one.
    QString abandonedTitle() { return place().text().value_or(AbandonedText()).title; }
    /// The type of the form; empty without one.
    QString typeName() const { return form->type().value_or(IssueType()).name; }

    std::unique_ptr<NewIssueForm> form = std::make_unique<NewIssueForm>();

private:
    QList<OptionItem> items(NewIssueOptions::Kind kind);

    NewIssueOptions options;
};
