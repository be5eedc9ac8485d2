#pragma once

#include <QAccessible>
#include <QQuickItem>
#include <QQuickView>
#include <QStringList>

#include <memory>

/// A window in which a test shows one component, and the warnings that this caused.
class Bench
{
public:
    Bench();
    ~Bench();
    Bench(const Bench &) = delete;
    Bench &operator=(const Bench &) = delete;

    /// Creates the only item of the window from QML text, to which the imports of the kit are prepended. Returns null
    /// after an error, which is then one of the warnings.
    QQuickItem *show(const QString &qml);

    QQuickView &window() { return m_window; }
    /// Messages of the engine and of the whole program since the bench was created, one per line.
    std::string warnings() const { return m_warnings.join(u'\n').toStdString(); }
    /// Sets a property of the singleton `Theme` or `Motion`.
    void setToken(const char *singleton, const char *property, const QVariant &value);
    QVariant token(const char *singleton, const char *property);
    /// The accessibility interface of an item.
    static QAccessibleInterface *accessible(QQuickItem *item)
    {
        return QAccessible::queryAccessibleInterface(item);
    }

private:
    QObject *singleton(const char *name) const
    {
        return m_tokens->property(name).value<QObject *>();
    }

    QQuickView m_window;
    std::unique_ptr<QObject> m_tokens;
    std::unique_ptr<QQuickItem> m_item;
    QStringList m_warnings;
};
