#include "screens/kit/controls/ControlInterface.h"

#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// The object `Accessible` of an item. While a screen reader is running, the templates of radio buttons create one of
/// their own before that of QML, which alone has values.
QObject *accessibleObjectOf(const QQuickItem &item)
{
    const auto &children = item.children();
    const auto found = std::find_if(children.rbegin(), children.rend(), [](const QObject *child) {
        return child->inherits("QQuickAccessibleAttached");
    });
    return found == children.rend() ? nullptr : *found;
}

bool isIgnored(const QQuickItem &item)
{
    const auto *told = accessibleObjectOf(item);
    return !told || told->property("ignored").toBool();
}

/// The nearest items below this one that screen readers find.
void collectChildren(const QQuickItem &item, QList<QAccessibleInterface *> &found)
{
    for (auto *child : item.childItems()) {
        auto *known = isIgnored(*child) ? nullptr : QAccessible::queryAccessibleInterface(child);
        if (known)
            found += known;
        else
            collectChildren(*child, found);
    }
}

void tellStateChange(QQuickItem *control)
{
    QAccessible::State changed;
    changed.disabled = true;
    QAccessibleStateChangeEvent event(control, changed);
    QAccessible::updateAccessibility(&event);
}

QAccessibleInterface *controlInterface(const QString &className, QObject *object)
{
    if (className != "QQuickAbstractButton"_L1)
        return nullptr;
    auto *control = qobject_cast<QQuickItem *>(object);
    return control && !isIgnored(*control) ? std::make_unique<ControlInterface>(*control).release()
                                           : nullptr;
}

} // namespace

void ControlInterface::install()
{
    QAccessible::installFactory(controlInterface);
}

ControlInterface::ControlInterface(QQuickItem &control) : QAccessibleObject(&control)
{
    QObject::connect(&control, &QQuickItem::enabledChanged, &control,
                     [item = &control] { tellStateChange(item); });
}

QQuickItem &ControlInterface::control() const
{
    return *static_cast<QQuickItem *>(object());
}

QObject *ControlInterface::told() const
{
    return accessibleObjectOf(control());
}

bool ControlInterface::isTold(const char *property) const
{
    const QObject *const object = told();
    return object && object->property(property).toBool();
}

QWindow *ControlInterface::window() const
{
    return control().window();
}

QAccessibleInterface *ControlInterface::parent() const
{
    QQuickWindow *window = control().window();
    auto *content = window ? window->contentItem() : nullptr;
    for (auto *item = control().parentItem(); item && item != content; item = item->parentItem()) {
        auto *known = isIgnored(*item) ? nullptr : QAccessible::queryAccessibleInterface(item);
        if (known)
            return known;
    }
    return window ? QAccessible::queryAccessibleInterface(window) : nullptr;
}

int ControlInterface::childCount() const
{
    QList<QAccessibleInterface *> children;
    collectChildren(control(), children);
    return int(children.size());
}

QAccessibleInterface *ControlInterface::child(int index) const
{
    QList<QAccessibleInterface *> children;
    collectChildren(control(), children);
    return children.value(index);
}

int ControlInterface::indexOfChild(const QAccessibleInterface *child) const
{
    QList<QAccessibleInterface *> children;
    collectChildren(control(), children);
    return int(children.indexOf(child));
}

QString ControlInterface::text(QAccessible::Text text) const
{
    const QObject *const object = told();
    if (!object || (text != QAccessible::Name && text != QAccessible::Description))
        return {};
    return object->property(text == QAccessible::Name ? "name" : "description").toString();
}

QRect ControlInterface::rect() const
{
    const auto *window = control().window();
    if (!window)
        return {};
    const QPoint place = control().mapToScene(QPointF()).toPoint();
    return {window->mapToGlobal(place), QSize(int(control().width()), int(control().height()))};
}

QAccessible::Role ControlInterface::role() const
{
    const QObject *const object = told();
    return object ? object->property("role").value<QAccessible::Role>() : QAccessible::NoRole;
}

QAccessible::State ControlInterface::state() const
{
    QAccessible::State state;
    const auto *window = control().window();
    state.checkable = isTold("checkable");
    state.checked = isTold("checked");
    state.selectable = isTold("selectable");
    state.selected = isTold("selected");
    state.pressed = isTold("pressed");
    state.disabled = !control().isEnabled();
    state.focusable = !state.disabled && (isTold("focusable") || control().activeFocusOnTab());
    state.focused = isTold("focused") || control().hasActiveFocus();
    state.invisible = !window || !window->isVisible() || rect().isEmpty() ||
                      !control().isVisible() || qFuzzyIsNull(control().opacity());
    state.offscreen =
        window && !QRect(window->mapToGlobal(QPoint()), window->size()).intersects(rect());
    return state;
}

void *ControlInterface::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
}

bool ControlInterface::canBeToggled() const
{
    return role() == QAccessible::CheckBox || role() == QAccessible::RadioButton;
}

QStringList ControlInterface::actionNames() const
{
    QStringList names{pressAction()};
    if (canBeToggled())
        names += toggleAction();
    if (state().focusable)
        names += setFocusAction();
    return names;
}

void ControlInterface::doAction(const QString &name)
{
    if (!control().isEnabled() || !actionNames().contains(name))
        return;
    if (name == setFocusAction())
        control().forceActiveFocus(Qt::OtherFocusReason);
    else
        QMetaObject::invokeMethod(told(), "pressAction");
}
