#pragma once

#include "platform/Preferences.h"
#include "shell/MainPlan.h"

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QRect>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// The frame, adjusted to fit completely on one of the screens: it is made no larger than the screen that it overlaps
/// most, and moved into that screen. Absent if it overlaps no screen.
std::optional<QRect> frameOnScreens(const QRect &frame, const QList<QRect> &screens);

/// The size of a window that is shown for the first time, reduced to the available area minus the height of a title
/// bar. If the area is smaller than the smallest main window, 940 × 580, the size is left to the desktop.
QSize sizeOnScreen(const QSize &usual, const QSize &room);

/// Stores the size, the position and the pane widths of the main window in the preferences.
class WindowMemory : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the composition root")
    /// In logical pixels, 210 to 320.
    Q_PROPERTY(int sidebarWidth READ sidebarWidth WRITE setSidebarWidth NOTIFY changed FINAL)
    /// In logical pixels, 380 to 780.
    Q_PROPERTY(int inspectorWidth READ inspectorWidth WRITE setInspectorWidth NOTIFY changed FINAL)

public:
    /// The preferences must outlive it.
    explicit WindowMemory(Preferences &preferences, QObject *parent = nullptr);

    int sidebarWidth() const { return m_sidebarWidth; }
    void setSidebarWidth(int width);
    int inspectorWidth() const { return m_inspectorWidth; }
    void setInspectorWidth(int width);

    /// The initial properties of a new window: x, y, width, height and visibility, as far as they are stored.
    QVariantMap initialProperties(const QList<QRect> &screens) const;
    /// Stores the state of the window when it closes or the program ends.
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
    /// The frame of the window while it is neither maximized nor full screen.
    QRect m_frame;
};
