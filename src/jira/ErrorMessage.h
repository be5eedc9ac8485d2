#pragma once

#include <QByteArray>
#include <QString>

/// The text for the user in the body of an error response. For a JSON body in Jira's format, its messages, one per
/// line. For any other text, its first 300 bytes. Empty for a web page and for bytes that are not valid UTF-8, which
/// includes a character truncated at the 300th byte.
QString errorMessage(const QByteArray &body);
