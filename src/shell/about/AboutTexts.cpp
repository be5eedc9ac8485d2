#include "shell/about/AboutTexts.h"

#include "screens/attachments/facts/ByteCount.h"

#include <QLocale>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double Tenths = 10;
constexpr double FirstWithoutDecimals = 100;

} // namespace

QString AboutTexts::version(const QString &version, const QString &build)
{
    if (version == "dev"_L1)
        return u"Version "_s + QStringLiteral(VELMORA_VERSION);
    return u"Version "_s + version + u" (build "_s + build + u')';
}

QString AboutTexts::time(std::optional<std::chrono::nanoseconds> time)
{
    if (!time)
        return u"Pas encore mesuré"_s;
    const double exact = std::chrono::duration<double, std::milli>(*time).count();
    const double value = std::round(exact * Tenths) / Tenths;
    const int decimals = value < FirstWithoutDecimals ? 1 : 0;
    return QLocale(QLocale::French).toString(value, 'f', decimals) + u"\u00A0ms"_s;
}

QString AboutTexts::memory(std::optional<qint64> bytes)
{
    return bytes ? byteCountText(*bytes) : u"Inconnue"_s;
}
