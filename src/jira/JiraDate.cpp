#include "jira/JiraDate.h"

using namespace Qt::StringLiterals;

namespace {

/// Reads a text in UTF-8 from its start. After the first mismatch it reads nothing more.
class Scanner
{
public:
    explicit Scanner(std::string_view text) : m_rest(text) {}

    /// Reads a number of exactly the given count of digits.
    int number(qsizetype digits)
    {
        int value = 0;
        for (qsizetype i = 0; i < digits; ++i)
            value = 10 * value + digit();
        return value;
    }
    void sign(char expected) { m_isGood = take(expected) && m_isGood; }
    bool take(char wanted)
    {
        const bool isThere = m_isGood && m_rest.starts_with(wanted);
        if (isThere)
            m_rest.remove_prefix(1);
        return isThere;
    }
    /// Reads a decimal point and one or more digits and returns them as milliseconds; returns 0 if there is no point.
    int fraction()
    {
        if (!take('.'))
            return 0;
        int milliseconds = 100 * digit();
        for (int unit = 10; m_isGood && startsWithDigit(); unit /= 10)
            milliseconds += unit * digit();
        return milliseconds;
    }
    bool isAtEnd() const { return m_isGood && m_rest.empty(); }
    void fail() { m_isGood = false; }

private:
    bool startsWithDigit() const
    {
        return !m_rest.empty() && m_rest.front() >= '0' && m_rest.front() <= '9';
    }
    int digit()
    {
        m_isGood = m_isGood && startsWithDigit();
        if (!m_isGood)
            return 0;
        const int value = m_rest.front() - '0';
        m_rest.remove_prefix(1);
        return value;
    }

    std::string_view m_rest;
    bool m_isGood = true;
};

QDate scanDay(Scanner &scanner)
{
    const int year = scanner.number(4);
    scanner.sign('-');
    const int month = scanner.number(2);
    scanner.sign('-');
    const int day = scanner.number(2);
    return QDate(year, month, day);
}

QTime scanTime(Scanner &scanner)
{
    const int hour = scanner.number(2);
    scanner.sign(':');
    const int minute = scanner.number(2);
    scanner.sign(':');
    const int second = scanner.number(2);
    return QTime(hour, minute, second, scanner.fraction());
}

/// Reads a time zone offset and returns it in seconds east of UTC.
int scanOffset(Scanner &scanner)
{
    if (scanner.take('Z'))
        return 0;
    const int direction = scanner.take('-') ? -1 : 1;
    if (direction > 0)
        scanner.sign('+');
    const int hours = scanner.number(2);
    scanner.take(':');
    const int minutes = scanner.number(2);
    if (hours > 23 || minutes > 59)
        scanner.fail();
    return direction * (hours * 3600 + minutes * 60);
}

} // namespace

std::optional<QDateTime> JiraDate::parse(std::string_view text)
{
    Scanner scanner(text);
    const QDate day = scanDay(scanner);
    scanner.sign('T');
    const QTime time = scanTime(scanner);
    const int offset = scanOffset(scanner);
    if (!scanner.isAtEnd() || !day.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(day, time, Qt::UTC).addSecs(-offset);
}

std::optional<QDate> JiraDate::parseDay(std::string_view text)
{
    Scanner scanner(text);
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
