#include "LearnerEvent.h"

#include <cctype>
#include <cstdio>
#include <ctime>

std::string LocalTimeNow()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[40];
    // %z gives +0100; ISO 8601 writes the offset +01:00.
    const std::size_t n = std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S%z", &local);
    const std::string at(text, n);
    if (at.size() != 24)
        return at;
    return at.substr(0, 22) + ':' + at.substr(22);
}

bool IsEventTime(const std::string& text)
{
    // YYYY-MM-DDTHH:MM:SS+HH:MM (or -HH:MM)
    static const char* const Shape = "dddd-dd-ddTdd:dd:dd+dd:dd";
    if (text.size() != 25)
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char want = Shape[i];
        const char c = text[i];
        if (want == 'd' ? !std::isdigit(static_cast<unsigned char>(c))
                        : (want == '+' ? (c != '+' && c != '-') : c != want))
            return false;
    }
    return true;
}

int DayOfDate(int year, int month, int day)
{
    // Howard Hinnant's days_from_civil.
    year -= month <= 2 ? 1 : 0;
    const int era = (year >= 0 ? year : year - 399) / 400;
    const int yoe = year - era * 400;
    const int doy = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const int doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

std::string DayText(int day)
{
    // Howard Hinnant's civil_from_days.
    const int z = day + 719468;
    const int era = (z >= 0 ? z : z - 146096) / 146097;
    const int doe = z - era * 146097;
    const int yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const int doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const int mp = (5 * doy + 2) / 153;
    const int d = doy - (153 * mp + 2) / 5 + 1;
    const int m = mp < 10 ? mp + 3 : mp - 9;
    const int y = yoe + era * 400 + (m <= 2 ? 1 : 0);
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", y, m, d);
    return text;
}

int EventDay(const std::string& at)
{
    if (!IsEventTime(at))
        return -1;
    const int year = std::stoi(at.substr(0, 4));
    const int month = std::stoi(at.substr(5, 2));
    const int day = std::stoi(at.substr(8, 2));
    if (month < 1 || month > 12 || day < 1 || day > 31)
        return -1;
    const int number = DayOfDate(year, month, day);
    // 31 February and the like do not come back as themselves.
    return DayText(number) == at.substr(0, 10) ? number : -1;
}
