#pragma once

#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Creates its child while `shown` is true and destroys it otherwise. The child is placed like that of a repeater: in
/// the parent of this item, just before it.
///
/// (A Loader of Qt 6.4 cannot create a component that is bound to the ids of its file. A Repeater can, but it detaches
/// a removed child from the engine before the child is destroyed. A binding of the child that is evaluated in between,
/// because it depends on the same change, then loads a picture without an engine, which crashes the program.)
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
    /// Set once, together with the item.
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
