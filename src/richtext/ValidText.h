#pragma once

#include <QByteArray>
#include <QStringView>

/// The text in UTF-8. Unpaired surrogates, which UTF-8 cannot encode, become U+FFFD.
QByteArray validUTF8(QStringView text);
