#include "screens/attachments/preview/TextPreview.h"

#include "async/OffThread.h"
#include "async/Spawn.h"
#include "async/WhileAlive.h"

void TextPreview::setUrl(const QUrl &url)
{
    if (!m_url.isEmpty() || url.isEmpty())
        return;
    m_url = url;
    m_isLoading = true;
    Q_EMIT urlChanged();
    Q_EMIT changed();
    spawn(load(url.toLocalFile()));
}

QCoro::Task<> TextPreview::load(QString path)
{
    auto read = [path] { return readText(path); };
    const TextExtract extract = co_await whileAlive(this, offThread(std::move(read)));
    m_isLoading = false;
    if (!extract.lines.isEmpty())
        beginInsertRows({}, 0, int(extract.lines.size()) - 1);
    m_extract = extract;
    if (!extract.lines.isEmpty())
        endInsertRows();
    Q_EMIT changed();
}

int TextPreview::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant TextPreview::data(const QModelIndex &index, int role) const
{
    Q_ASSERT(checkIndex(index, CheckIndexOption::IndexIsValid));
    return role == LineRole || role == Qt::DisplayRole ? m_extract.lines.at(index.row())
                                                       : QVariant();
}

QHash<int, QByteArray> TextPreview::roleNames() const
{
    return {{LineRole, "line"}};
}
