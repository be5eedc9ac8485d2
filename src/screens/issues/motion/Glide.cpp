#include "screens/issues/motion/Glide.h"

#include "screens/issues/motion/GlideOffset.h"
#include "screens/theme/Springs.h"

#include <QQuickWindow>

namespace {

constexpr auto keyProperty = "glideKey";

QString keyOf(const QQuickItem &item)
{
    return item.property(keyProperty).toString();
}

bool takesPart(const QQuickItem &item)
{
    return item.metaObject()->indexOfProperty(keyProperty) >= 0;
}

void collect(std::vector<QQuickItem *> &found, const QQuickItem &root)
{
    for (auto *child : root.childItems()) {
        if (!child->isVisible())
            continue;
        if (takesPart(*child))
            found.push_back(child);
        else
            collect(found, *child);
    }
}

} // namespace

Glide::Glide(QObject *parent) : QObject(parent)
{
    m_run.setStartValue(0.0);
    m_run.setEndValue(1.0);
    m_run.setEasingCurve(Springs::even());
    connect(&m_run, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { draw(value.toDouble()); });
    connect(&m_run, &QAbstractAnimation::finished, this, &Glide::rest);
    connect(&m_run, &QAbstractAnimation::stateChanged, this, &Glide::runningChanged);
}

Glide::Occasion Glide::occasion() const
{
    return {m_store->scope(), m_store->filterText(), m_store->filters()};
}

void Glide::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        connect(m_store, &AppStore::layoutChanged, this, &Glide::skipTurn);
        m_occasion = occasion();
    }
    Q_EMIT changed();
}

void Glide::skipTurn()
{
    m_occasion.reset();
    QMetaObject::invokeMethod(
        this, [this] { m_occasion = m_store ? std::optional(occasion()) : std::nullopt; },
        Qt::QueuedConnection);
}

std::vector<QQuickItem *> Glide::seenItems() const
{
    std::vector<QQuickItem *> items;
    if (m_view && m_view->isVisible())
        collect(items, *m_view);
    return items;
}

QQuickItem *Glide::itemOf(const QString &key) const
{
    const auto items = seenItems();
    const auto item =
        std::ranges::find(items, key, [](const QQuickItem *each) { return keyOf(*each); });
    return item == items.end() ? nullptr : *item;
}

void Glide::remember()
{
    const bool isMotion =
        m_store && std::exchange(m_occasion, occasion()) == m_occasion && m_duration > 0;
    if (m_isPending && isMotion)
        return;
    m_places.clear();
    if (isMotion) {
        for (const auto *item : seenItems())
            m_places.insert(keyOf(*item), item->mapToItem(m_view, QPointF()));
    }
    m_run.stop();
    rest();
}

void Glide::playLater()
{
    auto *window = m_view ? m_view->window() : nullptr;
    if (m_places.isEmpty() || m_isPending || !window)
        return;
    m_isPending = true;
    // At that time the view has laid out its rows again, and nothing has been drawn yet.
    connect(window, &QQuickWindow::afterAnimating, this, &Glide::play, Qt::SingleShotConnection);
    window->update();
}

void Glide::play()
{
    m_isPending = false;
    const auto places = std::exchange(m_places, {});
    for (auto *item : seenItems()) {
        const QString key = keyOf(*item);
        const auto place = places.constFind(key);
        const bool isNew = place == places.cend();
        const QPointF from = isNew ? QPointF() : *place - item->mapToItem(m_view, QPointF());
        if (isNew || !from.isNull())
            m_riders.push_back({.item = item, .key = key, .from = from, .isNew = isNew});
    }
    const bool hasKnown =
        qsizetype(m_riders.size()) < places.size() ||
        std::ranges::any_of(m_riders, [](const Rider &rider) { return !rider.isNew; });
    if (m_riders.empty() || !hasKnown)
        return m_riders.clear();
    for (auto &rider : m_riders)
        rider.ghost = ghostOf(rider);
    m_run.setDuration(m_duration);
    draw(0);
    m_run.start();
}

std::unique_ptr<GlideGhost> Glide::ghostOf(const Rider &rider) const
{
    const bool changesColumn = rider.from.x() != 0;
    if (!m_carrier || !m_ghost || !changesColumn)
        return nullptr;
    return std::make_unique<GlideGhost>(*rider.item, *m_ghost, *m_carrier);
}

void Glide::draw(double progress)
{
    for (auto &rider : m_riders) {
        // An item that has been reassigned to another issue does not move.
        const bool rides = rider.item && keyOf(*rider.item) == rider.key;
        if (!rides)
            rider.ghost.reset();
        if (!rider.item)
            continue;
        GlideOffset::of(*rider.item).setOffset(rides ? rider.from * (1 - progress) : QPointF());
        if (rider.isNew)
            rider.item->setOpacity(rides ? std::clamp(progress, 0.0, 1.0) : 1);
        if (rider.ghost)
            rider.ghost->follow();
    }
}

void Glide::rest()
{
    draw(1);
    m_riders.clear();
}
