#include "screens/kit/texts/LocalFiles.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <iterator>

QList<QUrl> LocalFiles::among(const QList<QUrl> &urls) const
{
    QList<QUrl> files;
    std::ranges::copy_if(urls, std::back_inserter(files), &QUrl::isLocalFile);
    return files;
}

QList<QUrl> LocalFiles::onClipboard() const
{
    const auto *content = QGuiApplication::clipboard()->mimeData();
    return content ? among(content->urls()) : QList<QUrl>{};
}
