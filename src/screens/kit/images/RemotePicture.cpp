#include "screens/kit/images/RemotePicture.h"

#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "screens/kit/images/ImageLoader.h"
#include "screens/kit/images/PictureProvider.h"

using namespace Qt::StringLiterals;

void RemotePicture::setAddress(const QUrl &address)
{
    if (m_address == address)
        return;
    m_address = address;
    Q_EMIT addressChanged();
    m_isLoaded = !ImageLoader::shared().cached(address).isNull();
    m_hasFailed = false;
    Q_EMIT sourceChanged();
    if (!m_isLoaded && !address.isEmpty())
        spawn(load(address));
}

QCoro::Task<> RemotePicture::load(QUrl address)
{
    const QImage image = co_await whileAlive(this, ImageLoader::shared().image(address));
    // Another address may have been set meanwhile. It is awaited separately.
    if (address == m_address)
        finish(!image.isNull());
}

void RemotePicture::finish(bool loaded)
{
    m_isLoaded = loaded;
    m_hasFailed = !loaded;
    Q_EMIT sourceChanged();
}

QUrl RemotePicture::source() const
{
    return m_isLoaded ? pictureAddress(m_address, PictureShape::Plain) : QUrl();
}

QUrl RemotePicture::roundSource() const
{
    return m_isLoaded ? pictureAddress(m_address, PictureShape::Round) : QUrl();
}
