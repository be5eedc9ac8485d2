#pragma once

#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

#include <initializer_list>

/// Puts a control into one of its states for a picture. Normally only a pointer or a key does that.
class States : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    enum State { Rest, Hovered, Pressed, Focused, Disabled };
    Q_ENUM(State)

    /// A control that does not have the state (a field cannot be pressed) stays at rest. In a group of controls the
    /// first one shows the state.
    Q_INVOKABLE void show(QQuickItem *sample, int state) const
    {
        auto *control = sample ? firstControl(sample) : nullptr;
        if (!control)
            return;
        if (state == Hovered || state == Pressed)
            setOneOf(control, {"lit", "highlighted", "active"});
        if (state == Pressed)
            setOneOf(control, {"down", "pressed"});
        if (state == Focused)
            setOneOf(control, {"ringed", "highlighted"});
        sample->setEnabled(state != Disabled);
    }

private:
    static bool has(const QObject *control, const char *property)
    {
        return control->metaObject()->indexOfProperty(property) >= 0;
    }
    static QQuickItem *firstControl(QQuickItem *item)
    {
        if (has(item, "lit") || has(item, "highlighted") || has(item, "active"))
            return item;
        for (auto *part : item->childItems()) {
            if (auto *control = firstControl(part))
                return control;
        }
        return nullptr;
    }
    static void setOneOf(QQuickItem *control, std::initializer_list<const char *> properties)
    {
        for (const auto *property : properties) {
            if (has(control, property)) {
                control->setProperty(property, true);
                return;
            }
        }
    }
};
