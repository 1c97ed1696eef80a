#include "../support/HarmlessHtml.h"
#include "calendar/DescriptionFormat.h"

#include <cstdlib>

// The input is a description, with the boilerplate of invitations or without.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (const QString &more : { QString(), QStringLiteral("<p>"), QStringLiteral("Microsoft Teams\n") }) {
        const QString html = DescriptionFormat::toSafeHtml(more + text, {}, {});
        // Regular expressions match nothing in what is no text.
        if (html.isValidUtf16() && !isHarmlessHtml(html))
            std::abort();
    }
    return 0;
}
