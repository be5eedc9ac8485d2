#pragma once

#include <QString>
#include <QStringList>

/// How much of a text file is shown. A file of any size opens at once.
struct TextLimits
{
    qint64 bytes = qint64(4) * 1024 * 1024;
    qsizetype lines = 20'000;
    /// The length of a line in UTF-16 units.
    qsizetype line = 2'000;
};

/// The beginning of a text file.
struct TextExtract
{
    QStringList lines;
    /// What is left out, for the user; empty if everything is shown.
    QString note;
    /// Why the file cannot be shown as a text, for the user.
    QString problem;
};

/// Reads the beginning of a file in UTF-8, UTF-16 or, failing that, Latin-1. Control characters and those that change
/// the direction of writing are replaced by visible ones; tabs become spaces. May be called from any thread.
TextExtract readText(const QString &path, const TextLimits &limits = {});
