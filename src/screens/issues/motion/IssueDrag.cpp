#include "screens/issues/motion/IssueDrag.h"

#include "model/OneLineText.h"
#include "platform/Compositor.h"

#include <QDrag>
#include <QMimeData>
#include <QQuickWindow>

#include <memory>

using namespace Qt::StringLiterals;

QVariantMap dragContent(const Issue &issue, const std::optional<QUrl> &address)
{
    QVariantMap content{{u"text/plain"_s, issue.key}};
    if (address) {
        const QString link = address->toString(QUrl::FullyEncoded);
        const QString title = issue.key + u' ' + issue.summary;
        content.insert(u"text/uri-list"_s, link);
        content.insert(u"text/html"_s,
                       u"<a href=\"%1\">%2</a>"_s.arg(link.toHtmlEscaped(), title.toHtmlEscaped()));
    }
    return content;
}

bool IssueDrag::take(const QString &key, QQuickItem *source)
{
    const auto issue = m_store ? m_store->issue(key) : std::nullopt;
    const auto *window = source ? source->window() : nullptr;
    if (!issue || !window)
        return false;
    m_issue = withOneLineTexts(**issue);
    m_content = dragContent(m_issue, m_store->browseURL(key));
    m_count = int(m_store->contextKeys(key).size());
    m_ratio = window->effectiveDevicePixelRatio();
    m_isComposed = composesWindows(window->screen());
    Q_EMIT changed();
    return true;
}

void IssueDrag::start(PressArea *source, const QImage &picture, QPointF hotSpot)
{
    if (!source || !source->isDragging())
        return;
    auto content = std::make_unique<QMimeData>();
    for (const auto &[type, text] : m_content.asKeyValueRange())
        content->setData(type, text.toString().toUtf8());
    QPixmap pixmap = QPixmap::fromImage(picture);
    pixmap.setDevicePixelRatio(m_ratio);
    // Qt deletes the drag once it is finished.
    auto *drag = std::make_unique<QDrag>(this).release();
    drag->setMimeData(content.release());
    drag->setPixmap(pixmap);
    drag->setHotSpot(hotSpot.toPoint());
    const QPointer<PressArea> dragged(source);
    drag->exec(Qt::CopyAction);
    // The desktop has taken the release of the button.
    if (dragged)
        dragged->cancel();
}
