#pragma once

#include "screens/kit/layers/KeyMonitorModifier.h"
#include "screens/kit/layers/Layer.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

#include <optional>
#include <vector>

/// The open layers of one window, and the only place that decides who receives a key press of that window. In order:
/// the key monitors in the topmost layer, the shortcuts of the window, the topmost layer itself if the key is Escape, and
/// the item with the focus, which is always in the topmost layer.
///
/// The automatic repetition of a key that is held down has an effect only for movement and typing, so that a key that
/// has closed a layer does not go on working in the layer below.
class WindowLayers : public QObject
{
    Q_OBJECT

public:
    /// The layers of a window, which owns them. They are created on the first call.
    static WindowLayers &of(QQuickWindow &window);

    /// The handler of the window's shortcuts. It observes every event, whichever layer is on top. Null for none.
    void setShortcuts(KeyHandler *shortcuts) { m_shortcuts = shortcuts; }

    void addMonitor(KeyMonitorModifier &monitor);
    void removeMonitor(KeyMonitorModifier &monitor);

    /// Makes a layer the topmost one, and remembers which item has the focus.
    void open(Layer &layer);
    /// Removes a layer and returns the focus to where it was when the layer opened, unless another item has taken it.
    void close(Layer &layer);
    /// Removes a layer whose items have left the window, perhaps because the window is being destroyed. The focus returns
    /// afterwards, if the window still exists.
    void forget(Layer &layer);
    /// Requests that all transient layers be closed, topmost first, down to one that the user must complete.
    void requestCloseAll();
    /// Null for a window without layers.
    Layer *top() const;
    /// The item with the focus is one in which text can be typed.
    bool isTyping() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The item that had the focus when a layer opened, and all its ancestors, innermost first.
    using FocusPath = QList<QPointer<QQuickItem>>;
    struct Entry
    {
        Layer *layer;
        FocusPath before;
    };

    explicit WindowLayers(QQuickWindow &window);

    bool receivesKeys(const KeyMonitorModifier &monitor) const;
    /// The handlers that receive the keys, newest first.
    QList<QPointer<KeyHandler>> handlers() const;
    bool takesPress(const QKeyEvent &press);
    bool takesRepetition(const QKeyEvent &press);
    bool takesFirstPress(const QKeyEvent &press);
    FocusPath focusPath() const;
    /// Removes a layer. Returns its focus path if it was the topmost layer.
    std::optional<FocusPath> remove(const Layer &layer);
    bool hasMovedOn(const FocusPath &before) const;
    void giveFocusBack(const FocusPath &before);

    QQuickWindow *m_window;
    QPointer<KeyHandler> m_shortcuts;
    /// Oldest first.
    QList<KeyMonitorModifier *> m_monitors;
    /// From bottom to top.
    std::vector<Entry> m_open;
    /// The last first press of a key was consumed, and not by the item with the focus.
    bool m_isHeldKeyConsumed = false;
};
