#include "common/OrvaneDspTime.h"
#include "common/OrvaneDspClock.h"

#include <algorithm>
#include <array>
#include <ctime>

namespace qel
{

namespace
{

constexpr std::int64_t millisecondsPerSecond = 1000, secondsPerDay = 86400;
/** The years for which the operating system converts local time. */
constexpr int firstLocalYear = 1971, lastLocalYear = 2037;

/** Julian day number of a date in the Gregorian calendar. */
std::int64_t julianDay (std::int64_t year, std::int64_t month, std::int64_t day) noexcept
{
    const std::int64_t beforeMarch = (14 - month) / 12; // the year starts in March
    const std::int64_t y = year + 4800 - beforeMarch, m = month + 12 * beforeMarch - 3;
    return day + (153 * m + 2) / 5 + 365 * y + y / 4 - y / 100 + y / 400 - 32045;
}

/** Months outside 1 to 12 carry over into neighbouring years. */
std::int64_t utcSeconds (const std::tm& fields) noexcept
{
    constexpr std::int64_t monthsPerYear = 12, tmYearZero = 1900;
    const std::int64_t months = (fields.tm_year + tmYearZero) * monthsPerYear + fields.tm_mon;
    const std::int64_t days = julianDay (months / monthsPerYear, months % monthsPerYear + 1, fields.tm_mday);
    return ((days - julianDay (1970, 1, 1)) * 24 + fields.tm_hour) * 3600 + std::int64_t{ 60 } * fields.tm_min +
           fields.tm_sec;
}

bool isLocalYear (int year) noexcept { return year >= firstLocalYear && year <= lastLocalYear; }

/** Sets the date from a day count since 1970, by way of its 400-year era. */
void setDate (std::tm& fields, std::int64_t daysSince1970) noexcept
{
    constexpr std::int64_t daysPerEra = 146097, daysFromMarchOfYear0 = 719468;
    const std::int64_t days = daysSince1970 + daysFromMarchOfYear0;
    const std::int64_t era = days / daysPerEra, ofEra = days % daysPerEra;
    const std::int64_t year = (ofEra - ofEra / 1460 + ofEra / 36524 - ofEra / 146096) / 365;
    const std::int64_t ofYear = ofEra - (365 * year + year / 4 - year / 100);
    const std::int64_t monthFromMarch = (5 * ofYear + 2) / 153;
    fields.tm_mday = static_cast<int> (ofYear - (153 * monthFromMarch + 2) / 5 + 1);
    fields.tm_mon = static_cast<int> (monthFromMarch < 10 ? monthFromMarch + 2 : monthFromMarch - 10);
    fields.tm_year = static_cast<int> (year + era * 400 - 1900 + (fields.tm_mon < 2 ? 1 : 0));
    fields.tm_wday = static_cast<int> ((daysSince1970 + 4) % 7); // 1970 began on a Thursday
}

std::tm utcFields (std::int64_t seconds) noexcept
{
    std::tm fields{};
    const std::int64_t ofDay = seconds % secondsPerDay;
    setDate (fields, seconds / secondsPerDay);
    fields.tm_hour = static_cast<int> (ofDay / 3600);
    fields.tm_min = static_cast<int> (ofDay / 60 % 60);
    fields.tm_sec = static_cast<int> (ofDay % 60);
    return fields;
}

std::tm calendarFields (std::int64_t seconds) noexcept
{
    const std::tm utc = utcFields (seconds);
    if (! isLocalYear (utc.tm_year + 1900))
        return utc;
    const auto standard = static_cast<std::time_t> (seconds);
    std::tm local{};
#if defined(_WIN32)
    return localtime_s (&local, &standard) == 0 ? local : utc;
#else
    return localtime_r (&standard, &local) != nullptr ? local : utc;
#endif
}

String twoDigits (int value) { return String::formatted ("%02d", value); }

}

Time::Time (int year, int month, int day, int hours, int minutes, int seconds, int milliseconds)
{
    constexpr int lastYear = 100'000'000; // keeps all sums within 64 bits, whatever the other fields hold
    std::tm fields{};
    fields.tm_year = std::clamp (year, 0, lastYear) - 1900;
    fields.tm_mon = month;
    fields.tm_mday = day;
    fields.tm_hour = hours;
    fields.tm_min = minutes;
    fields.tm_sec = seconds;
    fields.tm_isdst = -1;
    const std::int64_t whole =
        isLocalYear (year) ? static_cast<std::int64_t> (std::mktime (&fields)) : utcSeconds (fields);
    value = std::max<std::int64_t> (0, whole * millisecondsPerSecond + milliseconds);
}

Time Time::now() noexcept { return Time (currentTimeMilliseconds()); }

String Time::toText (const Parts& parts) const
{
    static constexpr std::array<const char*, 7> days{ "Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat" };

    const std::tm fields = calendarFields (std::max<std::int64_t> (0, value) / millisecondsPerSecond);
    const String gap = parts.fileNameSafe ? "_" : " - ";
    const String slash = parts.fileNameSafe ? "_" : "/";
    String text;
    if (parts.dayName)
        text += days[static_cast<std::size_t> (fields.tm_wday)] + gap;
    if (parts.date)
        text +=
            twoDigits (fields.tm_mday) + slash + twoDigits (fields.tm_mon + 1) + slash + String (fields.tm_year + 1900);
    if (parts.date && parts.time)
        text += gap;
    if (parts.time) {
        text += twoDigits (fields.tm_hour) + (parts.seconds ? "h" : ":") + twoDigits (fields.tm_min);
        if (parts.seconds)
            text += "m" + twoDigits (fields.tm_sec) + "s";
    }
    return text;
}

}
