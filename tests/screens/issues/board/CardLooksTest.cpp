#include "screens/Bench.h"
#include "screens/StoredPicture.h"
#include "state/models/IssueListModel.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Cards at the width that a board column gives them.
constexpr auto page = R"(
import Velmora.Issues
Item {
    id: root
    property var cards
    width: 900; height: 700
    CardLook { id: look }
    Flow {
        x: 10; y: 10; width: 890; spacing: 12
        Repeater {
            model: root.cards
            BoardCard { width: 280; style: look }
        }
    }
})";

Issue card(int number, const QString &summary)
{
    Issue issue;
    issue.key = u"WEB-%1"_s.arg(number);
    issue.projectKey = u"WEB"_s;
    issue.summary = summary;
    issue.status = IssueStatus(u"1"_s, u"En cours"_s, u"indeterminate"_s);
    return issue;
}

IssueList plainCards()
{
    const QString shortTitle = u"Un titre court"_s;
    IssueList cards;
    for (int number = 1; number <= 5; ++number) {
        Issue issue = card(number, shortTitle);
        issue.priority = IssuePriority(u"p"_s, number % 2 == 0 ? u"High"_s : u"Low"_s);
        issue.type = IssueType(u"1"_s, u"Bug"_s);
        cards += issue;
    }
    return cards;
}

Issue fullCard(int number, const QStringList &labels)
{
    Issue issue = card(
        number,
        u"La recherche globale ignore les accents de la page : un titre si long qu'il ne tient "
        "pas sur trois lignes d'une carte, et qui finit par trois points au bout de la dernière"_s);
    issue.priority = IssuePriority(u"p"_s, u"Highest"_s);
    issue.type = IssueType(u"1"_s, u"Story"_s);
    issue.assignee = JiraUser{u"5"_s, u"Noam Talvère"_s, std::nullopt, std::nullopt};
    issue.dueDate = QDate(2023, 11, 20);
    issue.labels = labels;
    return issue;
}

/// Cards with every kind of content: without any, with all of it, and with more than fits.
IssueList cards()
{
    IssueList cards = plainCards();
    cards += card(6, u"Sans rien"_s);
    cards += fullCard(7, {u"web"_s});
    cards += fullCard(8, {u"authentification"_s, u"internationalisation"_s, u"trois"_s});
    Issue late = fullCard(9, {u"une-seule-étiquette-qui-prend-toute-la-place"_s, u"b"_s});
    late.dueDate = QDate(2023, 11, 1);
    late.summary = u"Deux lignes de titre, tout juste, pour une échéance qui est passée"_s;
    late.type = std::nullopt;
    cards += late;
    Issue labels = card(10, u"Deux étiquettes sans échéance"_s);
    labels.labels = {u"api"_s, u"documentation-technique"_s};
    labels.priority = IssuePriority(u"p"_s, u"Medium"_s);
    cards += labels;
    Issue wide = fullCard(11, {u"une-étiquette-assez-longue-pour-tout"_s, u"b"_s});
    wide.dueDate = std::nullopt;
    cards += wide;
    return cards;
}

} // namespace

class CardLooks : public testing::TestWithParam<bool>
{
protected:
    CardLooks()
    {
        model.setIssues(cards());
        model.setFocusedKey(u"WEB-3"_s);
        model.setCheckedKeys({u"WEB-2"_s});
        bench.setToken("motion", "reduced", true);
        bench.setToken("theme", "dark", GetParam());
        bench.window().setColor(bench.token("theme", "content").value<QColor>());
        bench.window().resize(900, 700);
    }

    bool open()
    {
        auto *shown = bench.show(QString::fromLatin1(page));
        return shown && shown->setProperty("cards", QVariant::fromValue(&model));
    }
    /// The contents of the window after a first frame has applied all changes.
    QImage picture()
    {
        bench.window().grabWindow();
        return bench.window().grabWindow().convertToFormat(QImage::Format_RGB32);
    }

    IssueListModel model{UserCalendar::system(),
                         QDateTime(QDate(2023, 11, 19), QTime(12, 0), Qt::UTC)};
    Bench bench;
};

INSTANTIATE_TEST_SUITE_P(Appearances, CardLooks, testing::Bool(),
                         [](const auto &info) { return info.param ? "Dark" : "Light"; });

TEST_P(CardLooks, AreAsTheyAreStored)
{
    ASSERT_TRUE(open()) << bench.warnings();
    model.setOpenKey(u"WEB-4"_s);

    EXPECT_EQ(StoredPicture(u"cards"_s, GetParam()).differenceTo(picture()), "");
    EXPECT_EQ(bench.warnings(), "");
}

TEST_P(CardLooks, UnderThePointerAreAsTheyAreStored)
{
    ASSERT_TRUE(open()) << bench.warnings();
    model.setCheckedKeys({u"WEB-2"_s, u"WEB-3"_s});
    picture();
    // Hovers over the priority of a card in the first row.
    QTest::mouseMove(&bench.window(), {10 + 12 + 8, 10 + 12 + 18 + 8 + 18 + 8 + 10});

    EXPECT_EQ(StoredPicture(u"cards-hovered"_s, GetParam()).differenceTo(picture()), "");
    EXPECT_EQ(bench.warnings(), "");
}
