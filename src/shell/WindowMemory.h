#pragma once

#include "platform/Preferences.h"
#include "shell/MainPlan.h"

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QRect>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// The frame as it fits on one of the screens, none of which is hidden: no larger than the screen that it lies on most,
/// and moved into it. Nothing if it lies on none.
std::optional<QRect> frameOnScreens(const QRect &frame, const QList<QRect> &screens);

/// The size of a window that comes up for the first time, where the screen leaves that much room: no larger than the room,
/// less the height of a title bar. A screen that does not hold the smallest main window, 940 × 580, is left to the
/// desktop.
QSize sizeOnScreen(const QSize &usual, const QSize &room);

/// Remembers size, place and pane widths of the main window in the preferences, from one start to the next.
class WindowMemory : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the composition root")
    /// 210 to 320.
    Q_PROPERTY(int sidebarWidth READ sidebarWidth WRITE setSidebarWidth NOTIFY changed FINAL)
    /// 380 to 780.
    Q_PROPERTY(int inspectorWidth READ inspectorWidth WRITE setInspectorWidth NOTIFY changed FINAL)

public:
    /// The preferences must outlive it.
    explicit WindowMemory(Preferences &preferences, QObject *parent = nullptr);

    int sidebarWidth() const { return m_sidebarWidth; }
    void setSidebarWidth(int width);
    int inspectorWidth() const { return m_inspectorWidth; }
    void setInspectorWidth(int width);

    /// What a window that opens now is given: x, y, width, height and visibility, as far as they are remembered.
    QVariantMap initialProperties(const QList<QRect> &screens) const;
    /// Remembers the window when it closes or the program ends.
    void follow(QQuickWindow *window);
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void changed();

private:
    void noteFrame();
    void save();

    Preferences &m_preferences;
    int m_sidebarWidth;
    int m_inspectorWidth;
    QPointer<QQuickWindow> m_window;
    /// Of the window while it is neither maximized nor full screen.
    QRect m_frame;
};
