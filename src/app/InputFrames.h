#pragma once

#include <QBasicTimer>
#include <QObject>

/// Draws the response to a pressed key or mouse button at once. By default, Qt draws a window at the earliest 5 ms after
/// the first change of its items, in order to draw the changes of several events together. Someone who presses a key
/// waits for these 5 ms in vain, so after a press every changed window is drawn as soon as no event is waiting. What
/// changes without a press, such as an animation or what the pointer hovers over, is drawn as by default.
class InputFrames final : public QObject
{
public:
    /// Observes the events of the whole application until it is destroyed.
    InputFrames();

    /// Whether a platform plugin of Qt uses this delay. Others draw when the display asks for a frame, which an early
    /// frame would only disturb.
    static bool isUsefulOn(const QString &platformName);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    /// Runs from a press until no event is waiting.
    QBasicTimer m_idle;
};
