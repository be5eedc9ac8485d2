#pragma once

#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Puts a control into one of its states for a picture, which otherwise only a pointer or a key would.
class States : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    enum State { Rest, Hovered, Pressed, Focused, Disabled };
    Q_ENUM(State)

    /// What a control doesn't have (a field cannot be pressed) stays at rest.
    Q_INVOKABLE void show(QQuickItem *control, int state) const
    {
        if (state == Hovered || state == Pressed)
            set(control, "lit");
        if (state == Pressed)
            set(control, "down");
        if (state == Focused)
            set(control, "ringed");
        control->setEnabled(state != Disabled);
    }

private:
    static void set(QQuickItem *control, const char *property)
    {
        if (control->metaObject()->indexOfProperty(property) >= 0)
            control->setProperty(property, true);
    }
};
