#include "screens/Bench.h"
#include "screens/options/ListedOptions.h"

#include <QAccessible>
#include <QJSEngine>
#include <QSignalSpy>
#include <QTest>
#include <QtQml/qqml.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ListedOptions &source()
{
    static ListedOptions listed;
    return listed;
}

QObject *listed(QQmlEngine *, QJSEngine *)
{
    QJSEngine::setObjectOwnership(&source(), QJSEngine::CppOwnership);
    return &source();
}

void offer(int count)
{
    static const int isKnown =
        qmlRegisterSingletonType<OptionSource>("Tests", 1, 0, "Listed", listed);
    Q_UNUSED(isKnown)
    QList<OptionItem> items;
    for (int i = 1; i <= count; ++i)
        items.append({.id = QString::number(i),
                      .title = u"Option %1"_s.arg(i),
                      .shortcut = QString::number(i)});
    source().ran.clear();
    source().set(items);
}

const QString view =
    u"import Velmora.Options\nimport Tests\nOptionListView { source: Listed; placeholder: 'Statut…' }"_s;

QQuickItem *rowCalled(QQuickItem *item, const QString &title)
{
    if (item->property("title") == title && item->property("isHighlighted").isValid())
        return item;
    for (auto *child : item->childItems()) {
        if (auto *found = rowCalled(child, title))
            return found;
    }
    return nullptr;
}

// Renders a frame first, because the list creates and removes its rows just before a frame.
QQuickItem *row(Bench &bench, QQuickItem *list, const QString &title)
{
    bench.window().grabWindow();
    return rowCalled(list, title);
}

void readRowsIn(QAccessibleInterface *node, QStringList &titles)
{
    if (!node || node->state().invisible)
        return;
    if (node->role() == QAccessible::ListItem)
        titles += node->text(QAccessible::Name);
    for (int i = 0; i < node->childCount(); ++i)
        readRowsIn(node->child(i), titles);
}

/// The titles of the rows in the order in which a screen reader finds them.
QStringList readRows(Bench &bench)
{
    bench.window().grabWindow();
    QStringList titles;
    readRowsIn(QAccessible::queryAccessibleInterface(&bench.window()), titles);
    return titles;
}

bool isHighlighted(Bench &bench, QQuickItem *list, const QString &title)
{
    const auto *found = row(bench, list, title);
    return found && found->property("isHighlighted").toBool();
}

void type(Bench &bench, const QString &text)
{
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, &bench.window(), Qt::Key_unknown, QString(character), {});
}

QPoint middle(const QQuickItem *item)
{
    return item->mapToScene(item->boundingRect().center()).toPoint();
}

} // namespace

TEST(OptionListView, TheSearchFieldHasTheFocusAndANameAndNothingWarns)
{
    offer(3);
    Bench bench;
    auto *list = bench.show(view);
    ASSERT_NE(list, nullptr) << bench.warnings();
    auto *field = bench.window().activeFocusItem();
    ASSERT_NE(field, nullptr);
    EXPECT_TRUE(field->inherits("QQuickTextField"));
    EXPECT_EQ(Bench::accessible(field)->text(QAccessible::Name), u"Statut…"_s);
    EXPECT_EQ(Bench::accessible(field)->text(QAccessible::Description), u"Option 1, 1 sur 3"_s);
    EXPECT_DOUBLE_EQ(list->implicitHeight(), 38 + 6 + 3 * 32 + 6);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(OptionListView, TypingFiltersAndArrowsMoveWhileTheFieldKeepsTheFocus)
{
    offer(12);
    Bench bench;
    auto *list = bench.show(view);
    QTest::keyClick(&bench.window(), Qt::Key_Down);
    EXPECT_TRUE(isHighlighted(bench, list, u"Option 2"_s));
    type(bench, u"option 12"_s);
    ASSERT_NE(row(bench, list, u"Option 12"_s), nullptr);
    EXPECT_EQ(row(bench, list, u"Option 2"_s), nullptr);
    EXPECT_DOUBLE_EQ(list->implicitHeight(), 38 + 6 + 32 + 6);
    EXPECT_TRUE(bench.window().activeFocusItem()->inherits("QQuickTextField"));
    QSignalSpy done(list, SIGNAL(done()));
    QTest::keyClick(&bench.window(), Qt::Key_Return);
    EXPECT_EQ(source().ran, QStringList{u"Option 12"_s});
    EXPECT_EQ(done.count(), 1);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(OptionListView, ADigitRunsARowAndIsNotTyped)
{
    offer(3);
    Bench bench;
    bench.show(view);
    QTest::keyClick(&bench.window(), Qt::Key_2);
    EXPECT_EQ(source().ran, QStringList{u"Option 2"_s});
    EXPECT_EQ(bench.window().activeFocusItem()->property("text").toString(), QString());
    QTest::keyClick(&bench.window(), Qt::Key_9);
    EXPECT_EQ(bench.window().activeFocusItem()->property("text").toString(), u"9"_s);
}

TEST(OptionListView, ReturnOnTheCreateRowEmptiesTheFieldWhichKeepsTheFocus)
{
    offer(1);
    source().creates = true;
    Bench bench;
    auto *list = bench.show(view);
    QSignalSpy done(list, SIGNAL(done()));
    type(bench, u"bug fix"_s);
    ASSERT_NE(row(bench, list, u"Créer bug-fix"_s), nullptr);
    QTest::keyClick(&bench.window(), Qt::Key_Return);
    source().creates = false;
    EXPECT_EQ(source().created, QStringList{u"bug-fix"_s});
    EXPECT_EQ(done.count(), 0);
    auto *field = bench.window().activeFocusItem();
    ASSERT_TRUE(field->inherits("QQuickTextField"));
    EXPECT_EQ(field->property("text").toString(), QString());
    EXPECT_NE(row(bench, list, u"bug-fix"_s), nullptr) << "what was made is there to be seen";
    EXPECT_EQ(bench.warnings(), "");
}

TEST(OptionListView, TheRowsAreAtMost340HighAndTheHighlightStaysInSight)
{
    offer(40);
    Bench bench;
    auto *list = bench.show(view);
    EXPECT_DOUBLE_EQ(list->implicitHeight(), 38 + 340);
    for (int i = 0; i < 39; ++i)
        QTest::keyClick(&bench.window(), Qt::Key_Down);
    auto *last = row(bench, list, u"Option 40"_s);
    ASSERT_NE(last, nullptr);
    EXPECT_TRUE(last->property("isHighlighted").toBool());
    const auto box = last->mapRectToItem(list, last->boundingRect());
    EXPECT_GE(box.top(), 38);
    EXPECT_LE(box.bottom(), 38 + 340);
}

TEST(OptionListView, AClickPicksAndAMoveHighlights)
{
    offer(4);
    Bench bench;
    auto *list = bench.show(view);
    auto *third = row(bench, list, u"Option 3"_s);
    QTest::mouseMove(&bench.window(), middle(third));
    QTest::mouseMove(&bench.window(), middle(third) + QPoint(2, 0));
    EXPECT_TRUE(QTest::qWaitFor([&] { return third->property("isHighlighted").toBool(); }));
    QTest::mouseMove(&bench.window(), {500, 390});
    EXPECT_TRUE(third->property("isHighlighted").toBool()) << "leaving a row changes nothing";
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, middle(row(bench, list, u"Option 4"_s)));
    EXPECT_EQ(source().ran, QStringList{u"Option 4"_s});
}

TEST(OptionListView, WithoutARowItSaysSoAndGrowsByTheWords)
{
    offer(3);
    Bench bench;
    auto *list = bench.show(view);
    type(bench, u"zoé"_s);
    EXPECT_DOUBLE_EQ(list->implicitHeight(), 38 + 18 + 16 + 18);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(OptionRow, SaysItsTitleItsSubtitleAndThatItIsSelected)
{
    Bench bench;
    auto *row =
        bench.show(u"import Velmora.Options\nOptionRow { property QtObject o: QtObject { id: o; "
                   "property optionIcon icon } icon: o.icon; index: 0; title: 'Noam'; "
                   "subtitle: 'Moi'; isSelected: true; shortcut: '2'; width: 200 }"_s);
    ASSERT_NE(row, nullptr) << bench.warnings();
    auto *accessible = Bench::accessible(row);
    EXPECT_EQ(accessible->role(), QAccessible::ListItem);
    EXPECT_EQ(accessible->text(QAccessible::Name), u"Noam"_s);
    EXPECT_EQ(accessible->text(QAccessible::Description), u"Moi"_s);
    EXPECT_TRUE(accessible->state().selected);
    EXPECT_DOUBLE_EQ(row->implicitHeight(), 32);
    QSignalSpy picked(row, SIGNAL(picked()));
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(picked.count(), 1);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(KeyMonitorModifier, TheOneThatCameLastIsAskedFirstAndAHiddenOneNotAtAll)
{
    offer(3);
    Bench bench;
    auto *holder = bench.show(
        u"import Velmora.Options\nimport Tests\nItem { focus: true; "
        "property alias second: second; property alias a: a; property alias b: b; "
        "OptionList { id: a; source: Listed } OptionList { id: b; source: Listed } "
        "KeyMonitorModifier { handler: a } KeyMonitorModifier { id: second; handler: b } }"_s);
    ASSERT_NE(holder, nullptr) << bench.warnings();
    const auto highlighted = [&](const char *name) {
        return holder->property(name).value<QObject *>()->property("highlighted").toInt();
    };
    QTest::keyClick(&bench.window(), Qt::Key_Down);
    EXPECT_EQ(highlighted("a"), 0);
    EXPECT_EQ(highlighted("b"), 1);
    holder->property("second").value<QQuickItem *>()->setVisible(false);
    QTest::keyClick(&bench.window(), Qt::Key_Down);
    EXPECT_EQ(highlighted("a"), 1);
    EXPECT_EQ(highlighted("b"), 1);
}

TEST(KeyMonitorModifier, WhileTheFocusIsElsewhereItTakesNothing)
{
    offer(3);
    Bench bench;
    auto *holder = bench.show(
        u"import Velmora.Options\nimport Tests\nItem { "
        "property alias scope: scope; property alias other: other; property alias list: list; "
        "OptionList { id: list; source: Listed } "
        "FocusScope { id: scope; focus: true; KeyMonitorModifier { handler: list } } "
        "Item { id: other } }"_s);
    ASSERT_NE(holder, nullptr) << bench.warnings();
    const auto item = [&](const char *name) {
        return holder->property(name).value<QQuickItem *>();
    };
    const auto highlighted = [&] {
        return holder->property("list").value<QObject *>()->property("highlighted").toInt();
    };
    item("other")->forceActiveFocus();
    QTest::keyClick(&bench.window(), Qt::Key_Down);
    EXPECT_EQ(highlighted(), 0);
    item("scope")->forceActiveFocus();
    QTest::keyClick(&bench.window(), Qt::Key_Down);
    EXPECT_EQ(highlighted(), 1);
}

TEST(OptionListView, ScreenReadersFindRowsThatMoveInTheOrderInWhichTheyAreShown)
{
    offer(4);
    Bench bench;
    bench.show(view);
    EXPECT_EQ(readRows(bench),
              QStringList({u"Option 1"_s, u"Option 2"_s, u"Option 3"_s, u"Option 4"_s}));
    auto items = source().items();
    items.move(3, 0);
    items.removeAt(2);
    items.insert(1, {.id = u"5"_s, .title = u"Option 5"_s});
    source().set(items);
    EXPECT_EQ(readRows(bench),
              QStringList({u"Option 4"_s, u"Option 5"_s, u"Option 1"_s, u"Option 3"_s}));
    EXPECT_EQ(bench.warnings(), "");
}

TEST(OptionRows, TheyFollowATextThatKeepsTheFocus)
{
    offer(12);
    Bench bench;
    auto *holder = bench.show(uR"(
        import Velmora.Options
        import Tests
        Item {
            id: root
            property alias editor: editor
            property alias list: list
            property alias suggestions: suggestions
            width: 600
            height: 500
            InputField { id: editor; name: "Commentaire"; focus: true; onTextEdited: list.query = text }
            OptionList { id: list; source: Listed }
            Popover {
                id: suggestions
                parent: editor
                name: "Mentions"
                leavesFocus: true
                KeyMonitorModifier { handler: list }
                OptionRows { width: 290; list: list; name: "Mentions" }
            }
        })"_s);
    ASSERT_NE(holder, nullptr) << bench.warnings();
    const auto part = [&](const char *name) { return holder->property(name).value<QObject *>(); };
    auto *editor = qobject_cast<QQuickItem *>(part("editor"));
    editor->forceActiveFocus();
    QMetaObject::invokeMethod(part("suggestions"), "open");
    ASSERT_TRUE(QTest::qWaitFor([&] { return part("suggestions")->property("opened").toBool(); }));

    type(bench, u"option 1"_s);
    EXPECT_EQ(part("list")->property("query"), u"option 1"_s);
    QTest::keyClick(&bench.window(), Qt::Key_Down);
    EXPECT_TRUE(editor->hasActiveFocus());
    QTest::keyClick(&bench.window(), Qt::Key_Return);
    EXPECT_EQ(source().ran, QStringList{u"Option 10"_s});
    EXPECT_EQ(editor->property("text"), u"option 1"_s);

    QTest::keyClick(&bench.window(), Qt::Key_Escape);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return !part("suggestions")->property("visible").toBool(); }));
    EXPECT_TRUE(editor->hasActiveFocus());
    EXPECT_EQ(bench.warnings(), "");
}
