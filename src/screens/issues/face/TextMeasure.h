#pragma once

#include <QFont>
#include <QStringList>
#include <QTextLayout>

#include <memory>

/// Measures and divides texts as the windows draw them. All lengths are in logical pixels.
namespace TextMeasure {

/// The width of a text on one line.
double width(const QString &text, const QFont &font);
/// The text on one line. What exceeds `limit` is replaced with "…", and nothing is left if not even that
/// fits. A negative `limit` is none.
std::unique_ptr<QTextLayout> line(const QString &text, const QFont &font, double limit);
/// The text wrapped to `limit`, in at most `count` lines. What exceeds the last one is replaced with "…".
QStringList wrapped(const QString &text, const QFont &font, double limit, int count);

} // namespace TextMeasure
