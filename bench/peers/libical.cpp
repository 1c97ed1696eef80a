// libical: `parse FILE` and `expand FILE FROM TO REPEATS`, dates as yyyyMMdd in UTC.

#include "Report.h"

#include <libical/ical.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

namespace {

std::string readAll(const char *path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::size_t itemCount(icalcomponent *root)
{
    return std::size_t(icalcomponent_count_components(root, ICAL_VEVENT_COMPONENT)
                       + icalcomponent_count_components(root, ICAL_VTODO_COMPONENT));
}

icaltimetype dayInUtc(const char *text)
{
    icaltimetype day = icaltime_from_string(text);
    day.is_date = 0;
    day.zone = icaltimezone_get_utc_timezone();
    return day;
}

void countOne(icalcomponent *, struct icaltime_span *, void *count)
{
    ++*static_cast<std::size_t *>(count);
}

std::size_t expandOnce(icalcomponent *root, icaltimetype from, icaltimetype to)
{
    std::size_t count = 0;
    for (auto *event = icalcomponent_get_first_component(root, ICAL_VEVENT_COMPONENT); event;
         event = icalcomponent_get_next_component(root, ICAL_VEVENT_COMPONENT))
        icalcomponent_foreach_recurrence(event, from, to, countOne, &count);
    return count;
}

}

int main(int argc, char **argv)
{
    if (argc < 3)
        return 2;
    const std::string text = readAll(argv[2]);
    const Report::Stopwatch parsing;
    icalcomponent *root = icalparser_parse_string(text.c_str());
    if (!root)
        return 1;
    if (!std::strcmp(argv[1], "parse"))
        Report::parse("libical", itemCount(root), text.size(), parsing.elapsedMs());
    for (int rep = 0; argc >= 6 && rep < std::atoi(argv[5]); ++rep) {
        const Report::Stopwatch expanding;
        const std::size_t count = expandOnce(root, dayInUtc(argv[3]), dayInUtc(argv[4]));
        Report::expand("libical", rep, count, expanding.elapsedMs());
    }
    icalcomponent_free(root);
}
