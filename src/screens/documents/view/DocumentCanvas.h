#pragma once

#include "screens/documents/layout/DocumentPainter.h"
#include "screens/documents/view/MediaItems.h"

#include <QPointer>
#include <QQuickItem>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

/// Shows a document: lays out what is in sight, draws it in tiles, and makes the rest exact while nothing else happens.
/// Its `implicitHeight` is the height of the document at its width.
class DocumentCanvas : public QQuickItem
{
    Q_OBJECT
    QML_ANONYMOUS
    /// The document: any node, whose children are shown below each other.
    Q_PROPERTY(ADFNode node READ node WRITE setNode NOTIFY nodeChanged FINAL)
    /// What the document belongs to. Expands are closed and scrolled blocks return when it changes, and stay as they are
    /// when only the node changes.
    Q_PROPERTY(QString subject READ subject WRITE setSubject NOTIFY subjectChanged FINAL)
    /// The distance between the blocks, in logical pixels.
    Q_PROPERTY(double spacing READ spacing WRITE setSpacing NOTIFY spacingChanged FINAL)
    /// The size of paragraphs, in logical pixels.
    Q_PROPERTY(double fontSize READ fontSize WRITE setFontSize NOTIFY fontSizeChanged FINAL)
    /// The account id of the current user; empty if unknown.
    Q_PROPERTY(QString currentUserID READ currentUserID WRITE setCurrentUserID NOTIFY
                   currentUserIDChanged FINAL)
    /// The locale of dates by its name, such as "fr_FR", and their time zone as an IANA id. Those of the system at first.
    Q_PROPERTY(QString localeName READ localeName WRITE setLocaleName NOTIFY calendarChanged FINAL)
    Q_PROPERTY(QString timeZone READ timeZone WRITE setTimeZone NOTIFY calendarChanged FINAL)
    Q_PROPERTY(DocumentStyle *style READ style WRITE setStyle NOTIFY styleChanged REQUIRED FINAL)
    /// Creates the item for each media block. It needs a required property `block` of type `mediaBlock`, gets the
    /// available width, and is as high as its implicit height. Without it, media take no space.
    Q_PROPERTY(QQmlComponent *mediaDelegate READ mediaDelegate WRITE setMediaDelegate NOTIFY
                   mediaDelegateChanged FINAL)

public:
    explicit DocumentCanvas(QQuickItem *parent = nullptr);
    ~DocumentCanvas() override;

    const ADFNode &node() const { return m_node; }
    void setNode(const ADFNode &node);
    const QString &subject() const { return m_subject; }
    void setSubject(const QString &subject);
    double spacing() const { return m_options.spacing; }
    void setSpacing(double spacing);
    double fontSize() const { return m_options.fontSize; }
    void setFontSize(double size);
    QString currentUserID() const { return m_options.context.meID.value_or(QString()); }
    void setCurrentUserID(const QString &id);
    QString localeName() const { return m_options.context.calendar.locale.name(); }
    void setLocaleName(const QString &name);
    QString timeZone() const { return QString::fromLatin1(m_options.context.calendar.zone.id()); }
    void setTimeZone(const QString &id);
    DocumentStyle *style() const { return m_style; }
    void setStyle(DocumentStyle *style);
    QQmlComponent *mediaDelegate() const { return m_media.delegate(); }
    void setMediaDelegate(QQmlComponent *delegate);

    /// The document as it is laid out. Null before the first layout.
    DocumentShape *shape() const { return m_shape.get(); }
    /// Opens or closes an expand.
    void toggleExpand(int expand);
    /// The items of the media blocks that are in sight, by their numbers.
    const MediaItems &media() const { return m_media; }
    /// All heights are exact.
    bool isExact() const { return m_shape && !m_idle.isActive(); }

Q_SIGNALS:
    void nodeChanged();
    void subjectChanged();
    void spacingChanged();
    void fontSizeChanged();
    void currentUserIDChanged();
    void calendarChanged();
    void styleChanged();
    void mediaDelegateChanged();
    /// What is in sight has moved by a distance within the item, because heights above it were only estimates. A view
    /// that scrolls by the same distance stands still for the eye.
    void shifted(double distance);
    /// The blocks of the document are others than before.
    void blocksChanged();

protected:
    virtual DocumentMarks marks() { return {}; }
    /// The blocks were made anew, so that places in the old ones mean nothing.
    virtual void forgetPlaces() {}
    /// Scrolls a block sideways to an offset within its bounds. False if it is there already.
    bool scrollSideways(int scroller, double offset);
    /// Draws the document anew between two vertical positions.
    void redraw(double top, double bottom);
    void redraw();
    QRectF visible() const { return m_visible; }
    /// How far the drawing reaches beyond the item: focus rings and the backgrounds of words.
    static constexpr double overhang = 6;

    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &geometry, const QRectF &old) override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    void forgetBlocks();
    void forgetShape();
    void makeBlocks();
    void followWindow();
    void followSight();
    void settle();
    void makeMoreExact();
    void reportShift(int anchor, double before);
    int anchor() const;
    void resizeMedia(int media, double height);
    void publishHeight();
    void placeMedia();
    QPointF snap() const;

    ADFNode m_node;
    QString m_subject;
    BlockOptions m_options;
    QPointer<DocumentStyle> m_style;
    std::unique_ptr<DocumentShape> m_shape;
    MediaItems m_media;
    QTimer m_idle;
    QMetaObject::Connection m_frames;
    QRectF m_visible;
    /// The vertical positions between which the drawing is out of date.
    double m_dirtyTop = 0;
    double m_dirtyBottom = 0;
    QPointF m_snap;
};
