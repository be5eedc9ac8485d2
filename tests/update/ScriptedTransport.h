#pragma once

#include "support/ScriptedCall.h"
#include "update/UpdateTransport.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>

/// A transport whose responses a test decides.
class ScriptedTransport final : public UpdateTransport
{
public:
    ~ScriptedTransport() override
    {
        feeds.cancelPending();
        archives.cancelPending();
    }

    QCoro::Task<Document> readFeed(QUrl address) override
    {
        return feeds.call({}, std::move(address));
    }
    QCoro::Task<Archive> fetchArchive(QUrl address) override
    {
        return archives.call({}, std::move(address));
    }

    /// A complete archive with this content.
    static Archive archive(const QByteArray &content)
    {
        auto file = std::make_shared<QTemporaryFile>();
        EXPECT_TRUE(file->open());
        file->write(content);
        file->flush();
        return {.status = 200,
                .file = file,
                .sha256 = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex()};
    }

    ScriptedCalls<Document, QUrl> feeds;
    ScriptedCalls<Archive, QUrl> archives;
};
