#pragma once

#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Holds its child only while `shown`. The child stands where a repeater's would: in the item that this one stands in,
/// just before it.
///
/// (A Loader of Qt 6.4 cannot create a component that is bound to its ids. A Repeater can, but it takes the engine away
/// from a child that it drops before the child is gone, and a binding of the child that is carried out in between,
/// because it follows the very change that drops it, then loads a picture without an engine, which ends the program.)
class When : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool shown READ shown WRITE setShown NOTIFY shownChanged FINAL REQUIRED)
    Q_PROPERTY(
        QQmlComponent *content READ content WRITE setContent NOTIFY contentChanged FINAL REQUIRED)
    Q_CLASSINFO("DefaultProperty", "content")

public:
    explicit When(QQuickItem *parent = nullptr);
    ~When() override;

    bool shown() const { return m_isShown; }
    void setShown(bool shown);
    QQmlComponent *content() const { return m_content; }
    /// To be given once, with the item.
    void setContent(QQmlComponent *content);

Q_SIGNALS:
    void shownChanged();
    void contentChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void follow();
    void make();
    void drop();
    void place();

    bool m_isShown = false;
    QPointer<QQmlComponent> m_content;
    QPointer<QQuickItem> m_child;
};
