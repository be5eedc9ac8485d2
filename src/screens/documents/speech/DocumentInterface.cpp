#include "screens/documents/speech/DocumentInterface.h"

#include "model/text/LinkAddress.h"
#include "screens/documents/speech/DocumentSpeech.h"
#include "screens/documents/view/DocumentReader.h"

#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace {

using Kind = SpokenNode::Kind;

/// The child of a part that is at a position of the screen.
QAccessibleInterface *childOf(const QAccessibleInterface &parent, int x, int y)
{
    for (int i = 0; i < parent.childCount(); ++i) {
        auto *child = parent.child(i);
        if (child && child->rect().contains(x, y))
            return child;
    }
    return nullptr;
}

int indexIn(const QAccessibleInterface &parent, const QAccessibleInterface *wanted)
{
    for (int i = 0; i < parent.childCount(); ++i) {
        if (parent.child(i) == wanted)
            return i;
    }
    return -1;
}

} // namespace

DocumentInterface::DocumentInterface(DocumentReader &reader) : QAccessibleObject(&reader) {}

DocumentReader &DocumentInterface::reader() const
{
    return *static_cast<DocumentReader *>(object());
}

QWindow *DocumentInterface::window() const
{
    return reader().window();
}

QAccessibleInterface *DocumentInterface::parent() const
{
    QQuickWindow *window = reader().window();
    auto *content = window ? window->contentItem() : nullptr;
    for (auto *item = reader().parentItem(); item && item != content; item = item->parentItem()) {
        if (auto *accessible = QAccessible::queryAccessibleInterface(item))
            return accessible;
    }
    return window ? QAccessible::queryAccessibleInterface(window) : nullptr;
}

int DocumentInterface::childCount() const
{
    const auto &tree = reader().speech().tree();
    return tree.empty() ? 0 : int(tree.front().children.size());
}

QAccessibleInterface *DocumentInterface::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    return reader().speech().node(reader().speech().tree().front().children[size_t(index)]);
}

int DocumentInterface::indexOfChild(const QAccessibleInterface *child) const
{
    return indexIn(*this, child);
}

QAccessibleInterface *DocumentInterface::childAt(int x, int y) const
{
    return childOf(*this, x, y);
}

QAccessibleInterface *DocumentInterface::focusChild() const
{
    if (!reader().hasActiveFocus())
        return nullptr;
    auto *part = reader().speech().stop(reader().focusedStop());
    return part ? part : QAccessible::queryAccessibleInterface(object());
}

QString DocumentInterface::text(QAccessible::Text text) const
{
    return text == QAccessible::Name ? reader().name() : QString();
}

QRect DocumentInterface::rect() const
{
    return reader().speech().tree().empty() ? QRect() : reader().speech().box(0);
}

QAccessible::State DocumentInterface::state() const
{
    QAccessible::State state;
    state.focusable = true;
    state.readOnly = true;
    state.multiLine = true;
    state.focused = reader().hasActiveFocus() && reader().focusedStop() < 0;
    state.invisible = !reader().isVisible();
    return state;
}

const SpokenNode &PartInterface::node() const
{
    return m_speech.tree()[size_t(m_number)];
}

QWindow *PartInterface::window() const
{
    return m_speech.reader().window();
}

QAccessibleInterface *PartInterface::parent() const
{
    return m_speech.node(node().parent);
}

int PartInterface::childCount() const
{
    return int(node().children.size());
}

QAccessibleInterface *PartInterface::child(int index) const
{
    return index < 0 || index >= childCount() ? nullptr
                                              : m_speech.node(node().children[size_t(index)]);
}

int PartInterface::indexOfChild(const QAccessibleInterface *child) const
{
    return indexIn(*this, child);
}

QAccessibleInterface *PartInterface::childAt(int x, int y) const
{
    return childOf(*this, x, y);
}

QString PartInterface::text(QAccessible::Text text) const
{
    if (text == QAccessible::Name)
        return node().name;
    if (text != QAccessible::Description)
        return {};
    switch (node().kind) {
    case Kind::Heading:
        return u"Titre de niveau %1"_s.arg(node().level);
    case Kind::Task:
        return node().isOn ? u"Fait"_s : u"À faire"_s;
    case Kind::Expand:
        return node().isOn ? u"Déplié"_s : u"Replié"_s;
    case Kind::Link:
        return linkToolTip(node().name, m_speech.reader().stops()[size_t(node().stop)].link);
    default:
        return {};
    }
}

QRect PartInterface::rect() const
{
    return m_speech.box(m_number);
}

QAccessible::Role PartInterface::role() const
{
    switch (node().kind) {
    case Kind::Document:
        return QAccessible::Document;
    case Kind::Heading:
        return QAccessible::Heading;
    case Kind::Paragraph:
        return QAccessible::Paragraph;
    case Kind::List:
        return QAccessible::List;
    case Kind::Item:
    case Kind::Task:
        return QAccessible::ListItem;
    case Kind::Code:
    case Kind::Quote:
    case Kind::Panel:
        return QAccessible::Grouping;
    case Kind::Table:
        return QAccessible::Table;
    case Kind::Row:
        return QAccessible::Row;
    case Kind::HeaderCell:
        return QAccessible::ColumnHeader;
    case Kind::Cell:
        return QAccessible::Cell;
    case Kind::Expand:
        return QAccessible::Button;
    case Kind::Link:
        return QAccessible::Link;
    case Kind::Rule:
        return QAccessible::Separator;
    case Kind::Media:
        break;
    }
    return QAccessible::Graphic;
}

QAccessible::State PartInterface::state() const
{
    QAccessible::State state;
    const auto &reader = m_speech.reader();
    state.readOnly = true;
    state.focusable = canBePressed();
    state.focused =
        canBePressed() && reader.hasActiveFocus() && reader.focusedStop() == node().stop;
    state.invisible = !reader.isVisible();
    state.linked = node().kind == Kind::Link;
    if (node().kind == Kind::Task) {
        state.checkable = true;
        state.checked = node().isOn;
    } else if (node().kind == Kind::Expand) {
        state.expandable = true;
        state.expanded = node().isOn;
        state.collapsed = !node().isOn;
    }
    return state;
}

void *PartInterface::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface && canBePressed())
        return static_cast<QAccessibleActionInterface *>(this);
    return nullptr;
}

QStringList PartInterface::actionNames() const
{
    return canBePressed() ? QStringList{pressAction()} : QStringList();
}

void PartInterface::doAction(const QString &name)
{
    if (name != pressAction() || !canBePressed())
        return;
    // The action can replace the document, and this part with it.
    auto &reader = m_speech.reader();
    const auto stop = reader.stops()[size_t(node().stop)];
    reader.activate(stop);
}
