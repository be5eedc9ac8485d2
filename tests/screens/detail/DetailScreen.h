#pragma once

#include "app/WindowFixture.h"
#include "screens/kit/layers/WindowLayers.h"

#include <QQuickItem>
#include <QTest>

/// An issue beside the list of the main window, used by keys and pointer.
class DetailScreen : public WindowFixture
{
protected:
    DetailScreen()
    {
        Preferences(preferencesPath).setText(QStringLiteral("ordering"), QStringLiteral("key"));
        Issue parent = issueWithKey(QStringLiteral("MOB-1"));
        Issue child = issueWithKey(QStringLiteral("MOB-2"));
        child.type = IssueType{.id = QStringLiteral("10"), .name = QStringLiteral("Bug")};
        child.parent = IssueRef{QStringLiteral("id-MOB-1"),
                                QStringLiteral("MOB-1"),
                                QStringLiteral("Résumé de MOB-1"),
                                {},
                                {}};
        child.subtasks = {{QStringLiteral("31"),
                           QStringLiteral("MOB-31"),
                           QStringLiteral("Ouverte"),
                           IssueStatus::guessed(QStringLiteral("À faire")),
                           {}},
                          {QStringLiteral("32"),
                           QStringLiteral("MOB-32"),
                           QStringLiteral("Faite"),
                           IssueStatus::guessed(QStringLiteral("Terminé")),
                           {}},
                          {QStringLiteral("33"),
                           QStringLiteral("MOB-33"),
                           QStringLiteral("Sans statut"),
                           {},
                           {}}};
        serveIssues({parent, child});
        service->issueCalls.answerBy(
            [this](const QString &key) { return *store().issue(key).value_or(SharedIssue()); });
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
        settle();
    }

    void openIssue(const QString &key = QStringLiteral("MOB-2"))
    {
        store().setFocusedKey(key);
        press(Qt::Key_Return);
        // The field tells ordinary blanks.
        awaitTitle(QString((*store().issue(key))->summary).replace(u'\u00a0', u' '));
    }
    void awaitTitle(const QString &title)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return titleShown() == title; }))
            << titleShown().toStdString();
        settle();
    }
    QString titleShown()
    {
        const auto fields = spokenIn(window(), QAccessible::EditableText, QStringLiteral("Titre"));
        return fields.size() == 1 ? fields.first().value : QStringLiteral("(missing)");
    }
    void editTitle(const QString &text)
    {
        click(find(QAccessible::EditableText, QStringLiteral("Titre")));
        press(Qt::Key_A, Qt::ControlModifier);
        type(text);
    }
    bool isTyping() { return WindowLayers::of(window()).isTyping(); }
    /// All titles and due dates that were sent; an absent date is "-".
    QStringList sent()
    {
        QStringList values;
        for (int i = 0; i < service->updateCalls.count(); ++i) {
            const auto &update = service->updateCalls[i].argument<1>().value;
            if (const auto *title = std::get_if<IssueFieldUpdate::Summary>(&update))
                values += title->text;
            if (const auto *date = std::get_if<IssueFieldUpdate::DueDate>(&update))
                values += date->day ? date->day->toString(Qt::ISODate) : QStringLiteral("-");
        }
        return values;
    }
    void serveTitle(const QString &title)
    {
        Issue changed = **store().issue(QStringLiteral("MOB-2"));
        changed.summary = title;
        serveIssues({changed});
        reload();
        settle();
    }
    void serveDueDate(const std::optional<QDate> &day, const QString &status)
    {
        Issue changed = issueWithKey(QStringLiteral("MOB-2"), status);
        changed.dueDate = day;
        serveIssues({changed});
        reload();
    }
};
