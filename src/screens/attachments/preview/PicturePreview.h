#pragma once

#include "platform/Clock.h"
#include "screens/attachments/preview/PictureReader.h"
#include "state/AppStore.h"

#include <QCoro/QCoroTask>
#include <QObject>
#include <QPointer>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>

/// A picture file that is decoded in another process. An animation moves while `moves` is true.
class PicturePreview : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The store, whose clock times the frames.
    Q_PROPERTY(AppStore *store MEMBER m_store NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(QUrl url READ url WRITE setUrl NOTIFY urlChanged FINAL)
    Q_PROPERTY(bool moves READ moves WRITE setMoves NOTIFY movesChanged FINAL)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed FINAL)
    /// Why there is no picture, for the user. Empty if there is one or if it is being decoded.
    Q_PROPERTY(QString problem READ problem NOTIFY changed FINAL)
    Q_PROPERTY(QSize size READ size NOTIFY changed FINAL)

public:
    using QObject::QObject;

    void setStore(AppStore *store) { m_store = store; }
    const QUrl &url() const { return m_url; }
    void setUrl(const QUrl &url);
    bool moves() const { return m_moves; }
    void setMoves(bool moves);
    bool isLoading() const { return m_isLoading; }
    const QString &problem() const { return m_problem; }
    /// The size of the picture in its own pixels. The levels may be smaller.
    QSize size() const { return m_size; }
    const QList<QImage> &levels() const { return m_frame.levels; }

Q_SIGNALS:
    void storeChanged();
    void urlChanged();
    void movesChanged();
    void changed();
    /// Another frame is shown.
    void frameChanged();

private:
    using Reader = std::shared_ptr<PictureReader>;

    QCoro::Task<> load(QUrl url);
    QCoro::Task<> advance(Reader reader);
    void scheduleNext();
    void show(const PictureFrame &frame);

    QPointer<AppStore> m_store;
    QUrl m_url;
    Reader m_reader;
    PictureFrame m_frame;
    QSize m_size;
    QString m_problem;
    Clock::TimerHandle m_timer;
    bool m_isLoading = false;
    bool m_moves = true;
};
