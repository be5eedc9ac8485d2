#pragma once

#include "platform/SystemCalendar.h"

/// A calendar that changes when a test says so. Starts with French in Paris.
class ManualCalendar final : public SystemCalendar
{
public:
    explicit ManualCalendar(UserCalendar calendar = {QLocale(QLocale::French, QLocale::France),
                                                     QTimeZone("Europe/Paris")})
        : SystemCalendar(std::move(calendar))
    {
    }

    void change(UserCalendar calendar) { setCurrent(std::move(calendar)); }
};
