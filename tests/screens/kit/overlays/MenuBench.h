#pragma once

#include "screens/Bench.h"

#include <QAnimationDriver>
#include <QStringList>

/// Animations that advance only when the test says so.
class ManualAnimations : public QAnimationDriver
{
public:
    ManualAnimations() { install(); }
    ~ManualAnimations() override { uninstall(); }
    Q_DISABLE_COPY_MOVE(ManualAnimations)

    qint64 elapsed() const override { return m_elapsed; }
    void pass(qint64 milliseconds)
    {
        m_elapsed += milliseconds;
        advanceAnimation();
    }

private:
    qint64 m_elapsed = 0;
};

/// An open menu in a window, and a user who presses keys and moves the pointer.
class MenuBench
{
public:
    /// Opens a menu at a point of a window of 600 x 400. `rows` is the QML of its rows.
    explicit MenuBench(const QString &rows, QPoint place = {20, 20});
    /// The QML of one row per title.
    static QString rowsOf(const QStringList &titles);
    /// "Entrée 1" and so on.
    static QStringList numbered(int count);

    std::string warnings() const { return bench.warnings(); }
    QObject *menu() const { return m_menu; }
    QQuickItem *row(int index) const;
    /// The rows as they are shown, in the coordinates of the window.
    QRectF boxOf(const QQuickItem *item) const;
    QRectF box() const { return boxOf(content()->parentItem()); }
    QQuickItem *content() const { return m_menu->property("contentItem").value<QQuickItem *>(); }
    /// The part of the menu in which rows are seen completely.
    QRectF view() const;
    /// The strips at the upper and the lower edge.
    QQuickItem *sign(int index) const;

    int current() const { return m_menu->property("currentIndex").toInt(); }
    /// The title of the highlighted row. Empty if there is none.
    QString highlighted() const;
    qreal offset() const
    {
        return m_menu->property("rows").value<QQuickItem *>()->property("offset").toReal();
    }
    bool isOpen() const { return m_menu->property("visible").toBool(); }

    /// Presses a key at a time in milliseconds, by which the menu recognises pauses.
    void press(int key, const QString &text = {}, quint64 time = 0);
    void type(const QString &text, quint64 time);
    void moveTo(QPointF place);
    void wheel(QPointF place, int steps);
    /// Lets the items take their positions, and hover follow.
    void settle();

    Bench bench;

private:
    QObject *m_menu = nullptr;
};
