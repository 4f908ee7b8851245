#include "analysis/spanish_dates.h"

#include <fmt/format.h>

#include <array>

namespace tidewatch::spanish {
namespace {

struct Weekday {
    std::string_view name;
    std::string_view abbreviation;
};

constexpr std::array weekdays{
    Weekday{"domingo", "dom"},   Weekday{"lunes", "lun"},  Weekday{"martes", "mar"},
    Weekday{"miércoles", "mié"}, Weekday{"jueves", "jue"}, Weekday{"viernes", "vie"},
    Weekday{"sábado", "sáb"},
};

struct Month {
    std::string_view name;
    std::string_view abbreviation;
    std::string_view title;
};

constexpr std::array months{
    Month{"enero", "ene", "Enero"},
    Month{"febrero", "feb", "Febrero"},
    Month{"marzo", "mar", "Marzo"},
    Month{"abril", "abr", "Abril"},
    Month{"mayo", "may", "Mayo"},
    Month{"junio", "jun", "Junio"},
    Month{"julio", "jul", "Julio"},
    Month{"agosto", "ago", "Agosto"},
    Month{"septiembre", "sep", "Septiembre"},
    Month{"octubre", "oct", "Octubre"},
    Month{"noviembre", "nov", "Noviembre"},
    Month{"diciembre", "dic", "Diciembre"},
};

const Weekday& wordOf(std::chrono::weekday weekday) {
    return weekdays[weekday.c_encoding()];
}

const Month& wordOf(std::chrono::month month) {
    return months[static_cast<unsigned>(month) - 1];
}

// From 1 to 12.
int onTheDial(int hour) {
    return hour % 12 == 0 ? 12 : hour % 12;
}

std::string_view half(int hour) {
    return hour < 12 ? "am" : "pm";
}

}  // namespace

std::string_view name(std::chrono::weekday weekday) {
    return wordOf(weekday).name;
}

std::string_view abbreviation(std::chrono::weekday weekday) {
    return wordOf(weekday).abbreviation;
}

std::string_view name(std::chrono::month month) {
    return wordOf(month).name;
}

std::string_view abbreviation(std::chrono::month month) {
    return wordOf(month).abbreviation;
}

std::string weekdayAndDay(std::chrono::sys_days day) {
    const std::chrono::year_month_day date(day);
    return fmt::format("{} {} {}", abbreviation(std::chrono::weekday(day)), static_cast<unsigned>(date.day()),
                       abbreviation(date.month()));
}

std::string monthTitle(std::chrono::year_month month) {
    return fmt::format("{} {}", wordOf(month.month()).title, static_cast<int>(month.year()));
}

std::string dateAndTime(const CivilTime& time) {
    return fmt::format("{} {} {} · {:02}:{:02}", static_cast<unsigned>(time.date.day()),
                       abbreviation(time.date.month()), static_cast<int>(time.date.year()), time.hour,
                       time.minute);
}

std::string timeOfDay(int hour, int minute) {
    return fmt::format("{}:{:02} {}", onTheDial(hour), minute, half(hour));
}

std::string hourOfDay(int hour) {
    return fmt::format("{} {}", onTheDial(hour), half(hour));
}

}  // namespace tidewatch::spanish
