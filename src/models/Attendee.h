#pragma once

#include <QString>

/// One row of `attendees`. RFC 5545 §3.8.4.1.
struct Attendee {
    QString id; ///< empty: the repository makes one when it writes
    QString eventId;
    QString email; ///< without "mailto:"
    QString name;
    QString role = QStringLiteral("required"); ///< or "optional", "chair"
    QString status = QStringLiteral("needs-action"); ///< or "accepted", "declined", "tentative", "delegated"
    QString type; ///< CUTYPE as it stood, may be empty
    bool rsvp = false;

    bool operator==(const Attendee &) const = default;
};

Q_DECLARE_TYPEINFO(Attendee, Q_RELOCATABLE_TYPE);
