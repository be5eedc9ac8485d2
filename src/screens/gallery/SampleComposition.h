#pragma once

#include "platform/Clock.h"
#include "screens/composer/Composition.h"

#include <QtQml/qqmlregistration.h>

/// A comment for the gallery: it mentions the sample people, and is posted at once.
class SampleComposition : public Composition
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit SampleComposition(QObject *parent = nullptr);

protected:
    Clock &clock() override { return m_clock; }
    QList<JiraUser> candidates() const override;
    QCoro::Task<QList<JiraUser>> search(QString words, std::stop_token stop) override;
    QCoro::Task<bool> post(OutgoingComment comment) override;
    QCoro::Task<QList<Attachment>> upload(QList<QUrl> files) override;

private:
    SystemClock m_clock;
};
