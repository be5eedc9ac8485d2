#include "screens/kit/overlays/MenuIconCache.h"

#include "model/RawValues.h"
#include "screens/kit/painters/AvatarPainter.h"
#include "screens/kit/painters/PriorityPainter.h"
#include "screens/kit/painters/StatusPainter.h"
#include "screens/theme/IdentityColors.h"

#include <QMetaEnum>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal scale = 2;
constexpr qreal padding = 1;

QImage padded(qreal size, const std::function<void(QPainter &)> &paint)
{
    const int pixels = static_cast<int>(scale * (size + 2 * padding));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.translate(padding, padding);
    paint(painter);
    painter.end();
    image.setDevicePixelRatio(scale);
    return image;
}

QString categoryName(StatusCategory category)
{
    QString name =
        QString::fromLatin1(QMetaEnum::fromType<StatusCategory>().valueToKey(int(category)));
    name[0] = name[0].toLower();
    return name;
}

} // namespace

MenuIconCache &MenuIconCache::shared()
{
    static MenuIconCache cache;
    return cache;
}

QImage MenuIconCache::image(const QString &key, const std::function<QImage()> &draw)
{
    const auto known = m_cache.constFind(key);
    return known != m_cache.cend() ? *known : *m_cache.insert(key, draw());
}

QString statusMenuKey(const IssueStatus &status, AccentChoice accent)
{
    return u"status-%1-%2-%3"_s.arg(categoryName(status.category()),
                                    QString::number(status.progress()), rawValue(accent));
}

QString priorityMenuKey(PriorityLevel level)
{
    return u"priority-%1"_s.arg(int(level));
}

QString avatarMenuKey(const std::optional<JiraUser> &user)
{
    return u"avatar-"_s + (user ? user->id : u"none"_s);
}

QImage statusMenuImage(const IssueStatus &status, AccentChoice accent)
{
    constexpr qreal size = 14;
    return MenuIconCache::shared().image(statusMenuKey(status, accent), [&] {
        const StatusDrawing drawing{status.category(), status.progress(),
                                    IdentityColors::accent(accent)};
        return padded(size, [&](QPainter &painter) { paintStatusIcon(painter, drawing, size); });
    });
}

QImage priorityMenuImage(PriorityLevel level)
{
    constexpr qreal size = 14;
    return MenuIconCache::shared().image(priorityMenuKey(level), [&] {
        return padded(size, [&](QPainter &painter) {
            paintPriorityIcon(painter, level, IdentityColors::neutral(), size);
        });
    });
}

QImage avatarMenuImage(const std::optional<JiraUser> &user)
{
    constexpr qreal size = 16;
    return MenuIconCache::shared().image(avatarMenuKey(user), [&] {
        return padded(size, [&](QPainter &painter) {
            if (user)
                paintAvatar(painter, IdentityColors::person(user->id), user->initials(), size);
            else
                paintNobody(painter, size);
        });
    });
}
