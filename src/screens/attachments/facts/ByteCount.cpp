#include "screens/attachments/facts/ByteCount.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double Step = 1000;

struct Unit
{
    QStringView name;
    int decimals;
};

constexpr std::array Units{Unit{u"Ko", 0}, Unit{u"Mo", 1}, Unit{u"Go", 2},
                           Unit{u"To", 2}, Unit{u"Po", 2}, Unit{u"Eo", 2}};

double rounded(double value, int decimals)
{
    const double factor = std::pow(10, decimals);
    return std::round(value * factor) / factor;
}

/// The number without zeros at the end of its decimals.
QString numberText(double value, int decimals)
{
    while (decimals > 0 && rounded(value, decimals) == rounded(value, decimals - 1))
        --decimals;
    QLocale french(QLocale::French, QLocale::France);
    french.setNumberOptions(QLocale::OmitGroupSeparator);
    return french.toString(value, 'f', decimals);
}

} // namespace

QString byteCountText(qint64 bytes)
{
    bytes = std::max(bytes, qint64(0));
    if (bytes < Step)
        return QString::number(bytes) + (bytes < 2 ? u"\u00A0octet"_s : u"\u00A0octets"_s);
    double value = double(bytes) / Step;
    auto unit = Units.begin();
    // A value that would be rounded up to 1000 is written in the next unit.
    while (rounded(value, unit->decimals) >= Step && std::next(unit) != Units.end()) {
        value /= Step;
        ++unit;
    }
    return numberText(rounded(value, unit->decimals), unit->decimals) + u'\u00A0' +
           unit->name.toString();
}
