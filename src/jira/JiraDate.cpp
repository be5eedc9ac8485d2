#include "jira/JiraDate.h"

using namespace Qt::StringLiterals;

namespace {

/// Reads a text from its start. After the first mismatch it reads nothing more.
class Scanner
{
public:
    explicit Scanner(QStringView text) : m_rest(text) {}

    /// Reads a number of exactly the given count of digits.
    int number(qsizetype digits)
    {
        int value = 0;
        for (qsizetype i = 0; i < digits; ++i)
            value = 10 * value + digit();
        return value;
    }
    void sign(QChar expected) { m_isGood = take(expected) && m_isGood; }
    bool take(QChar wanted)
    {
        const bool isThere = m_isGood && m_rest.startsWith(wanted);
        if (isThere)
            m_rest = m_rest.sliced(1);
        return isThere;
    }
    /// Reads a decimal point and one or more digits and returns them as milliseconds; returns 0 if there is no point.
    int fraction()
    {
        if (!take(u'.'))
            return 0;
        int milliseconds = 100 * digit();
        for (int unit = 10; m_isGood && startsWithDigit(); unit /= 10)
            milliseconds += unit * digit();
        return milliseconds;
    }
    bool isAtEnd() const { return m_isGood && m_rest.isEmpty(); }
    void fail() { m_isGood = false; }

private:
    bool startsWithDigit() const
    {
        return !m_rest.isEmpty() && m_rest.front() >= u'0' && m_rest.front() <= u'9';
    }
    int digit()
    {
        m_isGood = m_isGood && startsWithDigit();
        if (!m_isGood)
            return 0;
        const int value = m_rest.front().unicode() - u'0';
        m_rest = m_rest.sliced(1);
        return value;
    }

    QStringView m_rest;
    bool m_isGood = true;
};

QDate scanDay(Scanner &scanner)
{
    const int year = scanner.number(4);
    scanner.sign(u'-');
    const int month = scanner.number(2);
    scanner.sign(u'-');
    const int day = scanner.number(2);
    return QDate(year, month, day);
}

QTime scanTime(Scanner &scanner)
{
    const int hour = scanner.number(2);
    scanner.sign(u':');
    const int minute = scanner.number(2);
    scanner.sign(u':');
    const int second = scanner.number(2);
    return QTime(hour, minute, second, scanner.fraction());
}

/// Reads a time zone offset and returns it in seconds east of UTC.
int scanOffset(Scanner &scanner)
{
    if (scanner.take(u'Z'))
        return 0;
    const int direction = scanner.take(u'-') ? -1 : 1;
    if (direction > 0)
        scanner.sign(u'+');
    const int hours = scanner.number(2);
    scanner.take(u':');
    const int minutes = scanner.number(2);
    if (hours > 23 || minutes > 59)
        scanner.fail();
    return direction * (hours * 3600 + minutes * 60);
}

} // namespace

std::optional<QDateTime> JiraDate::parse(const std::optional<QString> &text)
{
    if (!text)
        return std::nullopt;
    Scanner scanner(*text);
    const QDate day = scanDay(scanner);
    scanner.sign(u'T');
    const QTime time = scanTime(scanner);
    const int offset = scanOffset(scanner);
    if (!scanner.isAtEnd() || !day.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(day, time, Qt::UTC).addSecs(-offset);
}

std::optional<QDate> JiraDate::parseDay(const std::optional<QString> &text)
{
    if (!text)
        return std::nullopt;
    Scanner scanner(*text);
    const QDate day = scanDay(scanner);
    return scanner.isAtEnd() && day.isValid() ? std::optional(day) : std::nullopt;
}

QString JiraDate::dayText(const QDate &day)
{
    return day.toString(u"yyyy-MM-dd"_s);
}

QString JiraDate::jql(const QDateTime &instant, const QTimeZone &zone)
{
    return instant.toTimeZone(zone).toString(u"yyyy/MM/dd HH:mm"_s);
}
