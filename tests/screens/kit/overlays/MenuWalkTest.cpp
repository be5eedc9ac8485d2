#include "screens/Bench.h"

#include <QQuickItem>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace {

const QString page =
    u"Item { id: page; width: 300; height: 220; property alias menu: m; property alias sub: s; "
    "property alias entries: entries; property string chosen; property int runs: 0; "
    "function run(text: string) { page.chosen = text; page.runs++ }\n"
    "function add(at: int, text: string) { entries.insert(at, { title: text, on: true, there: true "
    "}) } "
    "function drop(at: int) { entries.remove(at) }\n"
    "function flip(at: int, what: string) { entries.setProperty(at, what, !entries.get(at)[what]) "
    "} "
    "ListModel { id: entries }\n"
    "PopupMenu { id: m; title: 'Menu'; "
    "Instantiator { model: entries; "
    "onObjectAdded: (index, object) => m.insertItem(index, object as Item); "
    "onObjectRemoved: (index, object) => m.removeItem(object as Item); "
    "PopupMenuItem { required property var model; isNear: false; "
    "text: model.title; enabled: model.on; visible: model.there; "
    "height: model.there ? implicitHeight : 0; onTriggered: page.run(text) } } "
    "PopupMenuSeparator {} "
    "PopupMenu { id: s; title: 'Statut'; "
    "PopupMenuItem { text: 'Backlog'; onTriggered: page.run(text) } "
    "PopupMenuItem { text: 'Fait'; onTriggered: page.run(text) } } "
    "PopupMenuItem { text: 'Zoé'; onTriggered: page.run(text) } } }"_s;

QRectF boxOf(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

QQuickItem *contentOf(QObject *menu)
{
    return menu->property("contentItem").value<QQuickItem *>();
}

QList<QQuickItem *> rowsOf(QObject *menu)
{
    QList<QQuickItem *> rows;
    for (int i = 0; i < menu->property("count").toInt(); ++i) {
        QQuickItem *row = nullptr;
        QMetaObject::invokeMethod(menu, "itemAt", Q_RETURN_ARG(QQuickItem *, row), Q_ARG(int, i));
        rows += row;
    }
    return rows;
}

/// One user who does at random what can be done to an open menu.
class Walk
{
public:
    Walk(Bench &bench, unsigned seed) : m_bench(bench), m_random(seed)
    {
        m_page = bench.show(page);
        EXPECT_NE(m_page, nullptr) << bench.warnings();
        for (int i = 0; i < 30; ++i)
            add(i);
        open();
    }

    void step()
    {
        switch (below(9)) {
        case 0:
        case 1:
        case 2:
            pressKey();
            break;
        case 3:
        case 4:
            QTest::mouseMove(&m_bench.window(), anywhere());
            break;
        case 5:
            wheel();
            break;
        case 6:
            click();
            break;
        case 7:
            change();
            break;
        default:
            choose();
        }
        settle();
        if (!isOpen(menu()))
            open();
        check();
    }

private:
    QObject *menu() const { return m_page->property("menu").value<QObject *>(); }
    QObject *submenu() const { return m_page->property("sub").value<QObject *>(); }
    int runs() const { return m_page->property("runs").toInt(); }
    QString chosen() const { return m_page->property("chosen").toString(); }
    int below(int end) { return std::uniform_int_distribution(0, end - 1)(m_random); }
    QPoint anywhere() { return {below(300), below(220)}; }
    static bool isOpen(QObject *menu) { return menu->property("visible").toBool(); }

    void add(int at)
    {
        const QString title = u"%1 %2"_s.arg(QChar(u'a' + below(8))).arg(m_named++);
        QMetaObject::invokeMethod(m_page, "add", Q_ARG(int, at), Q_ARG(QString, title));
    }

    void open()
    {
        QMetaObject::invokeMethod(menu(), "open");
        settle();
    }

    void settle()
    {
        QCoreApplication::processEvents();
        m_bench.window().grabWindow();
        QCoreApplication::processEvents();
    }

    void pressKey()
    {
        static constexpr Qt::Key keys[]{
            Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Home,  Qt::Key_End, Qt::Key_Left,
            Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Right, Qt::Key_A,   Qt::Key_C};
        QTest::keyClick(&m_bench.window(), keys[below(std::size(keys))]);
    }

    void wheel()
    {
        const QPoint at = anywhere();
        QTest::mouseMove(&m_bench.window(), at);
        QWheelEvent event(at, m_bench.window().mapToGlobal(at), {}, {0, 120 * (below(7) - 3)}, {},
                          {}, {}, false);
        QCoreApplication::sendEvent(&m_bench.window(), &event);
    }

    /// The title of the entry that a press at a point should run. Empty if there is none.
    QString entryAt(QPoint point) const
    {
        for (auto *menu : {submenu(), this->menu()}) {
            if (!isOpen(menu) || !boxOf(contentOf(menu)->parentItem()).contains(point))
                continue;
            for (auto *row : rowsOf(menu)) {
                // Rows meet at their edges, and a pixel belongs to one of them.
                const QPointF middle = point + QPointF(0.5, 0.5);
                const bool isSeen = boxOf(contentOf(menu)).contains(middle);
                if (isSeen && row->isEnabled() && row->isVisible() && boxOf(row).contains(middle))
                    return row->property("text").toString();
            }
            return {};
        }
        return {};
    }

    /// Whether the rows below this point may be moving, because a scroll sign is there.
    bool isOnSign(QPoint point) const
    {
        constexpr qreal signHeight = 20;
        return std::ranges::any_of(QList{submenu(), menu()}, [&](QObject *each) {
            const QRectF box = boxOf(contentOf(each));
            return isOpen(each) && box.contains(point) &&
                   !box.adjusted(0, signHeight, 0, -signHeight).contains(point);
        });
    }

    void click()
    {
        const QPoint at = anywhere();
        QTest::mouseMove(&m_bench.window(), at);
        settle();
        if (isOnSign(at))
            return;
        const QString pointed = entryAt(at);
        const int before = runs();
        QTest::mouseClick(&m_bench.window(), Qt::LeftButton, {}, at);
        EXPECT_LE(runs(), before + 1);
        if (runs() > before)
            EXPECT_EQ(chosen(), pointed) << at.x() << ", " << at.y();
    }

    void choose()
    {
        auto *open = isOpen(submenu()) && submenu()->property("currentIndex").toInt() >= 0
                         ? submenu()
                         : menu();
        const int index = open->property("currentIndex").toInt();
        const QString lit =
            index < 0 ? QString() : rowsOf(open).value(index)->property("text").toString();
        const int before = runs();
        QTest::keyClick(&m_bench.window(), Qt::Key_Return);
        EXPECT_LE(runs(), before + 1);
        if (runs() > before)
            EXPECT_EQ(chosen(), lit);
    }

    void change()
    {
        auto *entries = m_page->property("entries").value<QObject *>();
        const int count = entries->property("count").toInt();
        switch (count == 0 ? 0 : below(4)) {
        case 0:
            return add(below(count + 1));
        case 1:
            QMetaObject::invokeMethod(m_page, "drop", Q_ARG(int, below(count)));
            return;
        default:
            QMetaObject::invokeMethod(m_page, "flip", Q_ARG(int, below(count)),
                                      Q_ARG(QString, below(2) ? u"on"_s : u"there"_s));
        }
    }

    void check()
    {
        for (auto *menu : {this->menu(), submenu()}) {
            if (!isOpen(menu))
                continue;
            EXPECT_TRUE(QRectF(0, 0, 300, 220).contains(boxOf(contentOf(menu)->parentItem())));
            const auto rows = rowsOf(menu);
            const int index = menu->property("currentIndex").toInt();
            for (int i = 0; i < rows.size(); ++i) {
                const bool isLit = rows[i]->property("highlighted").toBool();
                EXPECT_EQ(isLit, i == index) << i << " of " << rows.size();
                if (!isLit)
                    continue;
                EXPECT_TRUE(rows[i]->isEnabled() && rows[i]->isVisible() && rows[i]->height() > 0);
                EXPECT_TRUE(boxOf(contentOf(menu)).intersects(boxOf(rows[i])));
            }
        }
    }

    Bench &m_bench;
    std::mt19937 m_random;
    QQuickItem *m_page = nullptr;
    int m_named = 0;
};

} // namespace

TEST(MenuWalk, TheHighlightStaysOnAnEntryInViewAndOnlyThatOneOrThePointedOneRuns)
{
    Bench bench;
    bench.window().resize(300, 220);
    // More walks than each run of the tests can afford.
    const int more = qEnvironmentVariableIntValue("VELMORA_MENU_SEEDS");
    const unsigned seeds = more > 0 ? unsigned(more) : 10;
    for (unsigned seed = 0; seed < seeds && !testing::Test::HasFailure(); ++seed) {
        Walk walk(bench, seed);
        for (int step = 0; step < 300 && !testing::Test::HasFailure(); ++step) {
            SCOPED_TRACE(u"seed %1, step %2"_s.arg(seed).arg(step).toStdString());
            walk.step();
        }
    }
    EXPECT_EQ(bench.warnings(), "");
}
