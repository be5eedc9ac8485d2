#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Tells whether an item has the keyboard focus because of Tab or Shift+Tab, so that it can show its focus. A focus
/// that a click or the program gave is not shown.
class TabArrival : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *item READ item WRITE setItem NOTIFY itemChanged FINAL REQUIRED)
    Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged FINAL)

public:
    using QObject::QObject;

    QQuickItem *item() const { return m_item; }
    void setItem(QQuickItem *item);
    bool isShown() const { return m_isShown; }

Q_SIGNALS:
    void itemChanged();
    void isShownChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void show(bool isShown);

    QPointer<QQuickItem> m_item;
    bool m_isShown = false;
};
