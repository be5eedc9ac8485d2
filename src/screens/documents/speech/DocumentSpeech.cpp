#include "screens/documents/speech/DocumentSpeech.h"

#include "screens/documents/speech/DocumentInterface.h"
#include "screens/documents/view/DocumentReader.h"

#include <QQuickWindow>

namespace {

QAccessibleInterface *documentInterface(const QString &className, QObject *object)
{
    if (className != QLatin1StringView("DocumentReader"))
        return nullptr;
    auto *reader = qobject_cast<DocumentReader *>(object);
    return reader ? std::make_unique<DocumentInterface>(*reader).release() : nullptr;
}

} // namespace

void DocumentSpeech::install()
{
    QAccessible::installFactory(documentInterface);
}

const std::vector<SpokenNode> &DocumentSpeech::tree()
{
    if (m_tree.empty() && m_reader.shape()) {
        m_tree = spokenTree(m_reader.shape()->blocks(), m_reader.stops());
        m_ids.resize(m_tree.size());
    }
    return m_tree;
}

QAccessibleInterface *DocumentSpeech::node(int number)
{
    if (number < 0 || number >= int(tree().size()))
        return nullptr;
    if (number == 0)
        return QAccessible::queryAccessibleInterface(&m_reader);
    if (const int media = m_tree[size_t(number)].media; media >= 0) {
        QQuickItem *item = m_reader.media().item(media);
        if (auto *shown = item ? QAccessible::queryAccessibleInterface(item) : nullptr)
            return shown;
    }
    auto &id = m_ids[size_t(number)];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(
            std::make_unique<PartInterface>(*this, number).release());
    return QAccessible::accessibleInterface(id);
}

QAccessibleInterface *DocumentSpeech::stop(int stop)
{
    for (size_t i = 0; i < tree().size(); ++i) {
        if (m_tree[i].stop == stop && stop >= 0)
            return node(int(i));
    }
    return nullptr;
}

QRect DocumentSpeech::box(int number)
{
    auto *shape = m_reader.shape();
    if (!shape || !m_reader.window())
        return {};
    const auto &node = tree()[size_t(number)];
    QRectF box(0, 0, m_reader.width(), shape->height());
    if (node.kind == SpokenNode::Kind::Link) {
        const auto boxes = m_reader.boxes(m_reader.stops()[size_t(node.stop)]);
        box = boxes.isEmpty() ? QRectF() : boxes.first();
    } else if (node.frame >= 0) {
        box = shape->frameBox(node.flow, node.frame);
    } else if (node.piece >= 0) {
        box = shape->pieceBox(node.flow, node.piece);
    }
    const QRectF inWindow = m_reader.mapRectToScene(box);
    return QRectF(m_reader.window()->mapToGlobal(inWindow.topLeft()), inWindow.size()).toRect();
}

void DocumentSpeech::forget()
{
    for (const auto id : m_ids) {
        if (id != 0)
            QAccessible::deleteAccessibleInterface(id);
    }
    m_ids.clear();
    m_tree.clear();
}
