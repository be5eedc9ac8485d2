#pragma once

#include <QAccessibleObject>

class QQuickItem;

/// The accessible interface of a control that can be pressed. Its texts, its role and most of its states are those of
/// `Accessible` in QML. That of Qt 6.4 tells a disabled control as an enabled one; this one tells its state, and
/// does nothing while it is disabled. Toggling is the same as pressing.
class ControlInterface : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    /// From now on, screen readers get this interface for every button of Qt Quick Controls and its kinds. Repeated calls
    /// have no effect.
    static void install();

    explicit ControlInterface(QQuickItem &control);

    QWindow *window() const override;
    QAccessibleInterface *parent() const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text text) const override;
    /// In the coordinates of the screen.
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QQuickItem &control() const;
    /// The object `Accessible` of the control. Not kept, because a template may create another one first.
    QObject *told() const;
    bool isTold(const char *property) const;
    bool canBeToggled() const;
};
