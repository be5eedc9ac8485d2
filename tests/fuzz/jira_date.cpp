/// Parses dates that a server may send.
#include "fuzz/Input.h"
#include "fuzz/Promise.h"
#include "jira/JiraDate.h"

#include <QTimeZone>

#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    if (const auto instant = JiraDate::parse(text)) {
        promise(instant->isValid() && instant->timeSpec() == Qt::UTC, "an instant is one, in UTC");
        promise(!JiraDate::jql(*instant, QTimeZone("Europe/Paris")).isEmpty(),
                "an instant can be asked for");
    }
    if (const auto day = JiraDate::parseDay(text))
        promise(day->isValid() && JiraDate::dayText(*day).toStdString() == text,
                "a day is written as it was read");
    return 0;
}
