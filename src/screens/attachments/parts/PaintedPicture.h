#pragma once

#include <QImage>
#include <QQuickPaintedItem>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

/// A picture of the program's image loader, which must have loaded it, with rounded corners. It is painted at the size
/// of the item, so that it needs neither a mask nor a texture of the size of the picture.
class PaintedPicture : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The address of the picture; empty for none.
    Q_PROPERTY(QUrl address READ address WRITE setAddress NOTIFY addressChanged FINAL)
    /// The size of the picture in its own pixels; empty without a picture.
    Q_PROPERTY(QSizeF pictureSize READ pictureSize NOTIFY addressChanged FINAL)
    /// The picture fills the item and is cropped around its centre. Otherwise all of it is shown.
    Q_PROPERTY(bool crops MEMBER m_crops NOTIFY lookChanged FINAL)
    /// The radius of the corners.
    Q_PROPERTY(qreal corner MEMBER m_corner NOTIFY lookChanged FINAL)
    /// Only the upper corners are rounded.
    Q_PROPERTY(bool hasSquareFoot MEMBER m_hasSquareFoot NOTIFY lookChanged FINAL)

public:
    explicit PaintedPicture(QQuickItem *parent = nullptr);

    const QUrl &address() const { return m_address; }
    void setAddress(const QUrl &address);
    QSizeF pictureSize() const { return m_picture.size(); }

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void addressChanged();
    void lookChanged();

private:
    QRectF placeOfPicture() const;

    QUrl m_address;
    QImage m_picture;
    /// The picture at the size at which it was painted last.
    QImage m_scaled;
    qreal m_corner = 0;
    bool m_crops = false;
    bool m_hasSquareFoot = false;
};
