#include "screens/issues/motion/GlideGhost.h"

using namespace Qt::StringLiterals;

namespace {

/// An invisible opacity that is not 0, because screen readers would not find a fully transparent card.
constexpr double unseen = 0.002;

/// The contents of a card.
QVariantMap contentOf(const QQuickItem &card)
{
    QVariantMap content;
    for (const auto *name : {"style", "issue", "isFocused", "isChecked", "isOpen", "dueText",
                             "dueTooltip", "isOverdue", "width"})
        content.insert(QString::fromLatin1(name), card.property(name));
    return content;
}

} // namespace

GlideGhost::GlideGhost(QQuickItem &card, QQmlComponent &component, QQuickItem &carrier)
    : m_card(&card), m_carrier(&carrier)
{
    auto *made =
        component.createWithInitialProperties(contentOf(card), component.creationContext());
    m_copy = qobject_cast<QQuickItem *>(made);
    if (!m_copy)
        return;
    m_copy->setParent(&carrier);
    m_copy->setParentItem(&carrier);
    // The copy ignores the pointer, which belongs to the cards below.
    m_copy->setAcceptHoverEvents(false);
    card.setOpacity(unseen);
    follow();
}

GlideGhost::~GlideGhost()
{
    if (m_card && m_copy)
        m_card->setOpacity(1);
    if (m_copy) {
        m_copy->setVisible(false);
        m_copy->deleteLater();
    }
}

void GlideGhost::follow()
{
    if (m_card && m_copy && m_carrier)
        m_copy->setPosition(m_card->mapToItem(m_carrier, QPointF()));
}
