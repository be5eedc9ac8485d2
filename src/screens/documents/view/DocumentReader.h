#pragma once

#include "screens/documents/content/FocusStops.h"
#include "screens/documents/speech/DocumentSpeech.h"
#include "screens/documents/view/DocumentCanvas.h"

#include <optional>

/// A document that is read with the pointer and the keyboard: its text is selected across blocks and copied, its links
/// are opened, its expands opened and closed, its wide blocks scrolled sideways.
///
/// Tab visits the document, then its links, expands and wide blocks. Return opens a link, Return and Space an expand,
/// the arrows scroll a wide block, and with Shift they select.
class DocumentReader : public DocumentCanvas
{
    Q_OBJECT
    QML_ELEMENT
    /// What a screen reader says of the document.
    Q_PROPERTY(QString name MEMBER m_name NOTIFY nameChanged FINAL)
    /// The true address of the link under the pointer, after a warning if its text names another host, in French; empty
    /// if there is none.
    Q_PROPERTY(QString linkHint READ linkHint NOTIFY linkHintChanged FINAL)
    /// The line of the link under the pointer.
    Q_PROPERTY(QRectF hoveredBox READ hoveredBox NOTIFY linkHintChanged FINAL)
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY selectionChanged FINAL)

public:
    explicit DocumentReader(QQuickItem *parent = nullptr);

    const QString &name() const { return m_name; }
    const QString &linkHint() const { return m_linkHint; }
    QRectF hoveredBox() const { return m_hoveredBox; }
    QString selectedText() const;
    TextRange selection() const { return TextRange::between(m_anchor, m_caret); }

    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void clearSelection();
    /// Copies the selection as plain text and as HTML. Does nothing without one.
    Q_INVOKABLE void copy() const;

    /// The parts that can have the focus, in the order of the document.
    const std::vector<FocusStop> &stops() const { return m_stops; }
    /// The part that has the focus; -1 for the document itself.
    int focusedStop() const { return m_focused; }
    DocumentSpeech &speech() { return m_speech; }
    /// Does what Return does on a part: opens a link, or opens or closes an expand.
    void activate(const FocusStop &stop);
    /// The rectangles of a part that has the focus.
    QList<QRectF> boxes(const FocusStop &stop);

Q_SIGNALS:
    void nameChanged();
    void linkHintChanged();
    void selectionChanged();
    /// The user opens a link. Only addresses that may be opened are reported: see `openableAddress`.
    void linkActivated(const QString &address);
    /// A part of the document has the focus and should be in sight, in the coordinates of the item.
    void revealRequested(const QRectF &box);

protected:
    DocumentMarks marks() override;
    void forgetPlaces() override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    enum class Unit { Character, Word, Block };

    void makeStops();
    /// Whether a key press has an effect on the document, so that the window must not use it.
    bool wants(const QKeyEvent &event) const;
    // The selection
    void select(TextPlace anchor, TextPlace caret);
    void selectAround(TextPlace place, Unit unit);
    void publishSelection() const;
    bool moveCaret(const QKeyEvent &event);
    std::optional<TextPlace> moved(const QKeyEvent &event);
    TextPlace stepped(TextPlace place, bool forwards, bool byWord);
    TextPlace steppedLine(TextPlace place, bool down);
    TextPlace endOfDocument() const;
    int lengthOf(int text) const;
    // The focus
    bool moveFocus(bool forwards);
    void focusOn(int stop);
    bool canFocus(const FocusStop &stop);
    bool operate(const QKeyEvent &event);
    bool scrollFocused(const QKeyEvent &event);
    void reveal(TextPlace place);
    // The pointer
    const FocusStop *stopAt(const DocumentHit &hit) const;
    void setHover(const QPointF &position);
    void leaveHover();

    DocumentSpeech m_speech{*this};
    QString m_name;
    std::vector<FocusStop> m_stops;
    TextPlace m_anchor;
    TextPlace m_caret;
    int m_focused = -1;
    bool m_showsFocus = false;
    // The press
    bool m_isPressed = false;
    Unit m_unit = Unit::Character;
    QPointF m_pressed;
    TextRange m_pressedUnit;
    quint64 m_doubleClick = 0;
    // The pointer
    QString m_linkHint;
    QRectF m_hoveredBox;
    int m_hoveredScroller = -1;
};
