#pragma once

#include <QByteArray>
#include <QDate>

/// A made-up life as an .ics text, the same at each call: about 1.3 KB an event, roughly one event in six
/// or seven a series, with zones, alarms and attendees, and one task for ten events.
namespace SampleFile {

struct Shape {
    int events = 10'000;
    QDate newest = QDate(2026, 11, 22); ///< series and events begin before this day
    int years = 5; ///< how far back they go
};

QByteArray generate(const Shape &shape);

} // namespace SampleFile
