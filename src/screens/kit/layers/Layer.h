#pragma once

#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class WindowLayers;

/// A part of a window that is shown above the others and receives all keys while it is on top: the palette, a popover, a
/// menu, a sheet, the menu bar. The content of the window is the lowest layer. `WindowLayers` knows the open layers in
/// the order in which they were opened.
///
/// When a layer closes, the focus returns to the item that had it when the layer opened.
class Layer : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    /// The focus scope that contains every item of the layer. Its window is the window of the layer.
    Q_PROPERTY(QQuickItem *item READ item WRITE setItem NOTIFY itemChanged FINAL REQUIRED)
    Q_PROPERTY(bool isOpen READ isOpen WRITE setIsOpen NOTIFY isOpenChanged FINAL REQUIRED)
    /// Escape requests that the layer be closed, if no key monitor in the layer consumes the key.
    Q_PROPERTY(bool closesOnEscape MEMBER m_closesOnEscape NOTIFY closesOnEscapeChanged FINAL)
    /// The layer takes the keys of its monitors only, and the focus stays where it is: suggestions below a text that the
    /// user goes on typing.
    Q_PROPERTY(bool leavesFocus MEMBER m_leavesFocus NOTIFY leavesFocusChanged FINAL)
    /// When the layer opens, it closes the other transient layers and takes the focus. Popups take it by themselves.
    Q_PROPERTY(bool replacesOthers MEMBER m_replacesOthers NOTIFY replacesOthersChanged FINAL)
    Q_PROPERTY(Kind kind MEMBER m_kind NOTIFY kindChanged FINAL)

public:
    enum class Kind {
        /// The content of the window, below all others.
        Content,
        /// Another layer that opens may close it.
        Transient,
        /// The user must complete it first: no shortcut of the window is carried out while it is open.
        Required
    };
    Q_ENUM(Kind)

    explicit Layer(QObject *parent = nullptr);
    ~Layer() override;

    QQuickItem *item() const { return m_item; }
    void setItem(QQuickItem *item);
    bool isOpen() const { return m_isOpen; }
    void setIsOpen(bool open);
    bool closesOnEscape() const { return m_closesOnEscape; }
    Kind kind() const { return m_kind; }
    bool leavesFocus() const { return m_leavesFocus; }
    bool contains(const QQuickItem *item) const;
    /// The item with the focus is in this layer.
    bool hasFocus() const;

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void itemChanged();
    void isOpenChanged();
    void closesOnEscapeChanged();
    void leavesFocusChanged();
    void replacesOthersChanged();
    void kindChanged();
    /// The owner of the layer should close it.
    void closeRequested();

private:
    void follow();

    QPointer<QQuickItem> m_item;
    /// The layers among which this layer is open. Null while it is closed.
    QPointer<WindowLayers> m_layers;
    bool m_isOpen = false;
    bool m_isComplete = false;
    bool m_closesOnEscape = true;
    bool m_leavesFocus = false;
    bool m_replacesOthers = false;
    Kind m_kind = Kind::Transient;
};
