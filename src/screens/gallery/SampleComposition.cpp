#include "screens/gallery/SampleComposition.h"

#include "screens/gallery/Samples.h"

SampleComposition::SampleComposition(QObject *parent) : Composition(parent)
{
    restart();
}

QList<JiraUser> SampleComposition::candidates() const
{
    return Samples().people();
}

QCoro::Task<QList<JiraUser>> SampleComposition::search(QString, std::stop_token)
{
    co_return QList<JiraUser>();
}

QCoro::Task<bool> SampleComposition::post(OutgoingComment)
{
    co_return true;
}

QCoro::Task<QList<Attachment>> SampleComposition::upload(QList<QUrl>)
{
    co_return QList<Attachment>();
}
