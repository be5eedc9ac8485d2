#include "platform/files/QtFileDialogs.h"

#include <QCoro/QCoroFuture>
#include <QFileDialog>
#include <QFuture>
#include <QPromise>
#include <QStandardPaths>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// The dialog deletes itself when it is closed.
QFileDialog *newDialog(const QString &title, QWindow *window)
{
    auto *dialog = std::make_unique<QFileDialog>(nullptr, title).release();
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setLabelText(QFileDialog::LookIn, u"Dossier :"_s);
    dialog->setLabelText(QFileDialog::FileName, u"Nom :"_s);
    dialog->setLabelText(QFileDialog::FileType, u"Type :"_s);
    dialog->setLabelText(QFileDialog::Reject, u"Annuler"_s);
    dialog->setNameFilter(u"Tous les fichiers (*)"_s);
    dialog->setModal(true);
    dialog->winId();
    dialog->windowHandle()->setTransientParent(window);
    return dialog;
}

/// The files with which the dialog ends; empty if it is cancelled.
QFuture<QList<QUrl>> answerOf(QFileDialog *dialog)
{
    const auto promise = std::make_shared<QPromise<QList<QUrl>>>();
    promise->start();
    QObject::connect(dialog, &QFileDialog::finished, dialog, [dialog, promise](int result) {
        promise->addResult(result == QDialog::Accepted ? dialog->selectedUrls() : QList<QUrl>());
        promise->finish();
    });
    dialog->open();
    return promise->future();
}

} // namespace

QCoro::Task<QList<QUrl>> QtFileDialogs::filesToOpen(QString title, QPointer<QWindow> window)
{
    QFileDialog *dialog = newDialog(title, window);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setLabelText(QFileDialog::Accept, u"Joindre"_s);
    const QFuture<QList<QUrl>> answer = answerOf(dialog);
    const QList<QUrl> files = co_await answer;
    co_return files;
}

QCoro::Task<std::optional<QUrl>> QtFileDialogs::placeToSave(QString title, QString name,
                                                            QPointer<QWindow> window)
{
    QFileDialog *dialog = newDialog(title, window);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setLabelText(QFileDialog::Accept, u"Enregistrer"_s);
    dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation));
    dialog->selectFile(name);
    const QFuture<QList<QUrl>> answer = answerOf(dialog);
    const QList<QUrl> places = co_await answer;
    co_return places.isEmpty() ? std::nullopt : std::optional(places.first());
}
