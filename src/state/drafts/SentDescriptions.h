#pragma once

#include "state/drafts/AbandonedTexts.h"

#include <QList>

/// The descriptions that were saved and may still be refused. The Markdown text of a refused one becomes the abandoned
/// text of its issue, because the store restores the previous description.
class SentDescriptions : public QObject
{
    Q_OBJECT

public:
    /// Those of a store, which owns them.
    static SentDescriptions &of(AppStore &store);

    /// Makes the text the description of the issue.
    void save(const QString &markdown, const QString &key);

private:
    struct Sent
    {
        QString key;
        QString markdown;
        AbandonedPlace place;
        /// What the issue showed before and after it was saved.
        std::optional<ADFNode> before;
        std::optional<ADFNode> after;
    };

    explicit SentDescriptions(AppStore &store);
    std::optional<ADFNode> shown(const QString &key) const;
    void takeRefusal();
    bool isRefused(const Sent &sent, qsizetype index) const;
    void takeAnswers();

    AppStore &m_store;
    /// How many writes of any kind were refused.
    int m_refusals = 0;
    /// In the order in which they were saved.
    QList<Sent> m_sent;
};
