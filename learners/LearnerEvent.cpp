#include "LearnerEvent.h"

#include <cctype>
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
