#pragma once

#include "platform/files/FileTools.h"

#include <QStringList>

#include <coroutine>
#include <vector>

/// Dialogs that a test answers in advance, or by `answer` after it has set `isOpen`. They record what they are asked.
class FakeFileDialogs final : public FileDialogs
{
public:
    QList<QUrl> files;
    std::optional<QUrl> place;
    /// The dialogs stay open until they are answered.
    bool isOpen = false;
    /// The titles of the dialogs for opening, and the names that were proposed for saving.
    QStringList titles;
    QStringList names;

    QCoro::Task<QList<QUrl>> filesToOpen(QString title, QPointer<QWindow>) override
    {
        titles += title;
        co_await End{*this};
        // What is returned is moved from.
        const QList<QUrl> chosen = files;
        co_return chosen;
    }
    QCoro::Task<std::optional<QUrl>> placeToSave(QString, QString name, QPointer<QWindow>) override
    {
        names += name;
        co_await End{*this};
        const std::optional<QUrl> chosen = place;
        co_return chosen;
    }
    /// Closes the open dialogs with the answers that are set.
    void answer()
    {
        isOpen = false;
        for (const auto handle : std::exchange(m_waiting, {}))
            handle.resume();
    }

private:
    struct End
    {
        FakeFileDialogs &dialogs;

        bool await_ready() const { return !dialogs.isOpen; }
        void await_suspend(std::coroutine_handle<> handle) const
        {
            dialogs.m_waiting.push_back(handle);
        }
        void await_resume() const {}
    };

    std::vector<std::coroutine_handle<>> m_waiting;
};

/// Records what it is asked to show.
class FakeFileManager final : public FileManager
{
public:
    QList<QUrl> revealed;

    void reveal(const QUrl &file) override { revealed += file; }
};

/// The tools of a test, passed to the objects that it examines.
struct FakeFileTools
{
    std::shared_ptr<FakeFileDialogs> dialogs = std::make_shared<FakeFileDialogs>();
    std::shared_ptr<FakeFileManager> manager = std::make_shared<FakeFileManager>();

    FileTools tools() const { return {dialogs, manager}; }
};
