#pragma once

#include <QString>

/// A number of bytes as French desktops write the size of a file, in powers of 1000: "386 octets", "6 Ko", "1,5 Mo",
/// "2,25 Go". Kilobytes have no decimals, megabytes at most one, larger units at most two. A negative number counts as
/// zero.
QString byteCountText(qint64 bytes);
