#include "screens/issues/face/IssueFace.h"

#include "screens/Bench.h"
#include "state/models/IssueListModel.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto page = R"(
import Velmora.Issues
Item {
    id: root
    property var cards
    width: 300; height: 300
    CardLook { id: look }
    Repeater {
        model: root.cards
        BoardCard { width: 280; style: look }
    }
})";

IssueList issueOf(const std::optional<JiraUser> &assignee)
{
    Issue issue;
    issue.key = u"WEB-1"_s;
    issue.summary = u"Titre"_s;
    issue.assignee = assignee;
    return {issue};
}

} // namespace

TEST(IssueFace, WhatAPointerAtRestIsOverIsToldAnewWhenTheIssueChanges)
{
    Bench bench;
    IssueListModel model(UserCalendar::system(),
                         QDateTime(QDate(2023, 11, 19), QTime(12, 0), Qt::UTC));
    model.setIssues(issueOf(std::nullopt));
    auto *shown = bench.show(QString::fromLatin1(page));
    ASSERT_TRUE(shown && shown->setProperty("cards", QVariant::fromValue(&model)))
        << bench.warnings();
    const IssueFace *card = nullptr;
    for (const auto *item : shown->childItems()) {
        if (const auto *face = qobject_cast<const IssueFace *>(item))
            card = face;
    }
    ASSERT_NE(card, nullptr);
    const QPoint avatar(280 - 12 - 8, 12 + 8);
    bench.window().grabWindow();
    QTest::mouseMove(&bench.window(), avatar);
    ASSERT_EQ(card->hotSpot().hint, u"Non assigné"_s);
    model.setIssues(issueOf(JiraUser{u"u1"_s, u"Noam Talvère"_s, {}, {}}));
    bench.window().grabWindow();
    EXPECT_EQ(card->hotSpot().hint, u"Noam Talvère"_s);
}
