#pragma once

#include "screens/kit/scrolling/EasedPosition.h"

#include <QAbstractAnimation>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class QKeyEvent;
class QWheelEvent;

/// Scrolls a Flickable with the wheel, with a touchpad and with the keys Page Up, Page Down, Home and End while it has
/// the focus. It replaces the wheel of the Flickable, which accelerates, and lets only touches drag the content.
///
/// A notch of the wheel scrolls by a constant distance. Notches add up and are eased; a notch in the other direction
/// takes effect at once. A touchpad, which reports pixels, scrolls exactly. Shift turns the wheel sideways. A view that
/// scrolls only sideways also takes the ordinary wheel.
class ScrollControl : public QAbstractAnimation
{
    Q_OBJECT
    QML_ELEMENT
    /// A Flickable. An event filter on it receives its events.
    Q_PROPERTY(QQuickItem *view READ view WRITE setView NOTIFY viewChanged FINAL REQUIRED)
    /// No easing.
    Q_PROPERTY(bool isReduced MEMBER m_isReduced NOTIFY isReducedChanged FINAL)
    /// The view scrolls sideways only.
    Q_PROPERTY(bool isHorizontal MEMBER m_isHorizontal NOTIFY isHorizontalChanged FINAL)
    /// A new gesture that this view cannot follow scrolls the view around it.
    Q_PROPERTY(bool passesOn MEMBER m_passesOn NOTIFY passesOnChanged FINAL)

public:
    /// The distance of one notch in logical pixels, with three lines for each notch, which is the usual setting of
    /// desktops.
    static constexpr double NotchDistance = 72;

    using QAbstractAnimation::QAbstractAnimation;

    QQuickItem *view() const { return m_view; }
    void setView(QQuickItem *view);
    /// No end; it stops when the target is reached.
    int duration() const override { return -1; }
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Scrolls at once so that a share of the scrolled length, 0 to 1, is above the view.
    Q_INVOKABLE void scrollTo(double share);
    /// Scrolls by notches of the wheel, towards the end for positive ones.
    Q_INVOKABLE void scrollBy(double notches);

Q_SIGNALS:
    void viewChanged();
    void isReducedChanged();
    void isHorizontalChanged();
    void passesOnChanged();
    /// The user scrolls; emitted with each step.
    void scrolled();

protected:
    void updateCurrentTime(int time) override;

private Q_SLOTS:
    void noteMove();

private:
    bool takesWheel(QWheelEvent &event);
    bool takesKey(const QKeyEvent &event);
    void watchWindow();
    void notePointer(QEvent &event);
    double position() const;
    ScrollBounds bounds() const;
    double pageLength() const;
    void move(double distance);
    void place(double position);
    void run();

    QPointer<QQuickItem> m_view;
    QPointer<QObject> m_window;
    EasedPosition m_eased;
    int m_lastTime = 0;
    bool m_isReduced = false;
    bool m_isHorizontal = false;
    bool m_passesOn = false;
    bool m_isPlacing = false;
};
