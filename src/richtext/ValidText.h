#pragma once

#include <QByteArray>
#include <QStringView>

/// The text in UTF-8. Half a surrogate pair, which UTF-8 cannot say, becomes U+FFFD.
QByteArray validUTF8(QStringView text);
