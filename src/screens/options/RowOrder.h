#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Keeps the rows of a list view in the order of their indexes among the children of its content, which is the order in
/// which a screen reader finds them. A view by itself leaves them in the order of their creation, so that rows that move
/// would be read in their old order. Only children with a property `index` are rows. Rows must not overlap.
class RowOrder : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The content item of a list view.
    Q_PROPERTY(
        QQuickItem *content READ content WRITE setContent NOTIFY contentChanged FINAL REQUIRED)

public:
    using QQuickItem::QQuickItem;

    QQuickItem *content() const { return m_content; }
    void setContent(QQuickItem *content);

    /// Call it when the index of a row has changed. The rows are put in order before the next frame.
    Q_INVOKABLE void restore() { polish(); }

Q_SIGNALS:
    void contentChanged();

protected:
    void updatePolish() override;

private:
    QPointer<QQuickItem> m_content;
};
