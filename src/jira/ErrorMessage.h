#pragma once

#include <QByteArray>
#include <QString>

/// What the body of a failed answer says to the user. A body of Jira's own form gives its messages, one on each line;
/// any other text its first 300 bytes. A web page, and bytes that are no text (also a character that the 300th byte
/// cuts), give nothing.
QString errorMessage(const QByteArray &body);
