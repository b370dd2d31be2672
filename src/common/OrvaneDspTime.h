#pragma once
#include "text/OrvaneDspString.h"

#include <cstdint>

namespace qel
{

/** A point in time: milliseconds since the start of 1970. Calendar fields are in local time for the years 1971 to
    2037, else in UTC. */
class Time
{
public:
    /** What the text includes. */
    struct Parts
    {
        bool date = true, time = true, seconds = true, dayName = false, fileNameSafe = false;
    };

    Time() = default;
    explicit Time (std::int64_t millisecondsSince1970) noexcept : value (millisecondsSince1970) {}
    /** Months count from 0, days from 1; negative results become 0. */
    Time (int year, int month, int day, int hours, int minutes, int seconds = 0, int milliseconds = 0);
    [[nodiscard]] static Time now() noexcept;

    [[nodiscard]] std::int64_t milliseconds() const noexcept { return value; }
    /** "Sat - 21/11/2026 - 15h04m09s", or "Sat_21_11_2026_15h04m09s" for use in file names. */
    [[nodiscard]] String toText (const Parts& parts) const;

private:
    std::int64_t value = 0;
};

}
