#pragma once

#include <QByteArray>

/// The bytes compressed as a server sends them with `Content-Encoding: gzip`.
QByteArray packed(const QByteArray &bytes);
