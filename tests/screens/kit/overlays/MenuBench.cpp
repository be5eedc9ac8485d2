#include "screens/kit/overlays/MenuBench.h"

#include <QQmlListReference>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

MenuBench::MenuBench(const QString &rows, QPoint place)
{
    auto *holder = bench.show(u"Item { width: 600; height: 400; property alias menu: m; "
                              "property string chosen; PopupMenu { id: m; title: 'Menu'; "
                              "x: %1; y: %2; %3 } }"_s.arg(place.x())
                                  .arg(place.y())
                                  .arg(rows));
    EXPECT_NE(holder, nullptr) << bench.warnings();
    m_menu = holder->property("menu").value<QObject *>();
    QMetaObject::invokeMethod(m_menu, "open");
    settle();
}

QString MenuBench::rowsOf(const QStringList &titles)
{
    QString rows;
    for (const auto &title : titles)
        rows += u"PopupMenuItem { isNear: false; text: \"%1\" } "_s.arg(title);
    return rows;
}

QStringList MenuBench::numbered(int count)
{
    QStringList titles;
    for (int i = 1; i <= count; ++i)
        titles += u"Entrée %1"_s.arg(i);
    return titles;
}

QQuickItem *MenuBench::row(int index) const
{
    QQuickItem *row = nullptr;
    QMetaObject::invokeMethod(m_menu, "itemAt", Q_RETURN_ARG(QQuickItem *, row), Q_ARG(int, index));
    return row;
}

QRectF MenuBench::boxOf(const QQuickItem *item) const
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

QRectF MenuBench::view() const
{
    QRectF view = boxOf(content());
    if (sign(0)->isVisible())
        view.setTop(boxOf(sign(0)).bottom());
    if (sign(1)->isVisible())
        view.setBottom(boxOf(sign(1)).top());
    return view;
}

QQuickItem *MenuBench::sign(int index) const
{
    return qobject_cast<QQuickItem *>(QQmlListReference(m_menu, "signs").at(index));
}

QString MenuBench::highlighted() const
{
    const auto *item = current() < 0 ? nullptr : row(current());
    return item && item->property("highlighted").toBool() ? item->property("text").toString()
                                                          : QString();
}

void MenuBench::press(int key, const QString &text, quint64 time)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(&bench.window(), &event);
    }
    settle();
}

void MenuBench::type(const QString &text, quint64 time)
{
    for (const QChar letter : text)
        press(letter.isSpace() ? Qt::Key_Space : Qt::Key_unknown, letter, time);
}

void MenuBench::moveTo(QPointF place)
{
    QTest::mouseMove(&bench.window(), place.toPoint());
    settle();
}

void MenuBench::wheel(QPointF place, int steps)
{
    moveTo(place);
    QWheelEvent wheel(place, bench.window().mapToGlobal(place), {}, {0, 120 * steps}, {}, {}, {},
                      false);
    QCoreApplication::sendEvent(&bench.window(), &wheel);
    settle();
}

void MenuBench::settle()
{
    QCoreApplication::processEvents();
    bench.window().grabWindow();
    QCoreApplication::processEvents();
}
