// What a server, or somebody who stands between, may answer.

#include "caldav/CalDavParse.h"

#include <QtGlobal>

#include <cstdint>

namespace {

void require(bool holds)
{
    if (!holds)
        qFatal("a property of the reader does not hold");
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray body(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QUrl base(QStringLiteral("https://example.com/cal/"));
    const auto whole = CalDavParse::parseEventResources(body, base);
    CalDavParse::EventResourceReader reader(body, base);
    qsizetype count = 0;
    int turns = 0;
    while (!reader.atEnd()) {
        count += reader.read(1, 16).size();
        require(++turns <= int(size) + 8);
    }
    require(count == whole.size());
    for (const auto &resource : whole)
        require(!resource.href.endsWith(u'/'));
    CalDavParse::parseCalendarList(body, base);
    CalDavParse::parsePrincipalUrl(body, base);
    CalDavParse::parseCalendarHomeSet(body, base);
    CalDavParse::parseCtag(body);
    return 0;
}
