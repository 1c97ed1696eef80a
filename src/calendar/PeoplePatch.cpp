#include "calendar/PeoplePatch.h"

#include "calendar/ICalEventBuilder.h"
#include "calendar/ICalLineText.h"

#include <QSet>

#include <algorithm>

using namespace ICal;

namespace {

/// An address as it would read back, for comparing.
QString addressKey(const QString &address)
{
    const QByteArray value = addressValue(address);
    return QString::fromUtf8(addressOf(value)).trimmed().toLower();
}

/// A name as it would read back, without the quotes that an organizer's is kept with.
QString nameKey(const QString &name)
{
    const QByteArray value = parameterValue(QString::fromUtf8(withoutQuotes(name.toUtf8())));
    return QString::fromUtf8(withoutQuotes(value));
}

QByteArray nameValue(const QString &name)
{
    return parameterValue(QString::fromUtf8(withoutQuotes(name.toUtf8())));
}

QByteArray roleValue(const QString &role)
{
    if (role == u"chair")
        return "CHAIR";
    return role == u"optional" ? "OPT-PARTICIPANT" : "REQ-PARTICIPANT";
}

QByteArray answerValue(const QString &status)
{
    for (const char *answer : { "ACCEPTED", "DECLINED", "TENTATIVE", "DELEGATED" }) {
        if (status.compare(QLatin1StringView(answer), Qt::CaseInsensitive) == 0)
            return answer;
    }
    return "NEEDS-ACTION";
}

QByteArray newLine(const Attendee &attendee)
{
    QByteArray line = "ATTENDEE";
    if (!attendee.name.isEmpty())
        line += ";CN=" + nameValue(attendee.name);
    if (!attendee.type.isEmpty())
        line += ";CUTYPE=" + parameterValue(attendee.type);
    line += ";ROLE=" + roleValue(attendee.role) + ";PARTSTAT=" + answerValue(attendee.status);
    if (attendee.rsvp)
        line += ";RSVP=TRUE";
    return line + ':' + addressValue(attendee.email);
}

/// The line of someone who is in both.
class KeptLine {
public:
    explicit KeptLine(QByteArray text)
        : m_text(std::move(text))
    {
    }

    void set(QByteArrayView parameter, const QByteArray &value)
    {
        m_text = withParameter(ContentLine(m_text), parameter, value);
    }

    void setAttendee(const Attendee &before, const Attendee &after, bool isOwn)
    {
        if (!after.name.isEmpty() && nameKey(after.name) != nameKey(before.name))
            set("CN", nameValue(after.name));
        if (!after.type.isEmpty() && after.type.compare(before.type, Qt::CaseInsensitive) != 0)
            set("CUTYPE", parameterValue(after.type));
        if (roleValue(after.role) != roleValue(before.role))
            set("ROLE", roleValue(after.role));
        if (!isOwn)
            return; // whether an answer is awaited goes with the answer
        if (answerValue(after.status) != answerValue(before.status))
            set("PARTSTAT", answerValue(after.status));
        if (after.rsvp != before.rsvp)
            set("RSVP", after.rsvp ? "TRUE" : "FALSE");
    }

    [[nodiscard]] const QByteArray &text() const { return m_text; }

private:
    QByteArray m_text;
};

}

void PeoplePatch::setOrganizer(TreeComponent &vevent, const Event &before, const Event &event)
{
    const TreeLine *old = vevent.lastLine("ORGANIZER");
    if (event.organizerEmail.isEmpty()) {
        if (!before.organizerEmail.isEmpty())
            vevent.removeLines("ORGANIZER");
        return;
    }
    const bool isSamePerson = old && addressKey(event.organizerEmail) == addressKey(before.organizerEmail);
    KeptLine line(isSamePerson ? old->text() : "ORGANIZER:" + addressValue(event.organizerEmail));
    const QString &present = isSamePerson ? before.organizerName : QString();
    if (!event.organizerName.isEmpty() && nameKey(event.organizerName) != nameKey(present))
        line.set("CN", nameValue(event.organizerName));
    if (!isSamePerson || line.text() != old->text())
        vevent.setLine(line.text());
}

void PeoplePatch::setAttendees(TreeComponent &vevent, const Event &before, const Event &event,
                               const QStringList &ownAddresses)
{
    QSet<QString> ownKeys;
    for (const QString &own : ownAddresses)
        ownKeys.insert(addressKey(own));
    QList<Attendee> missing = event.attendees;
    for (Attendee &attendee : missing)
        attendee.id = addressKey(attendee.email); // made once, compared often
    missing.removeIf([](const Attendee &attendee) { return attendee.id.isEmpty(); });

    qsizetype next = 0;
    vevent.rewriteLines("ATTENDEE", [&](const TreeLine &line) -> std::optional<QByteArray> {
        if (addressOf(line.content().value()).isEmpty() || next >= before.attendees.size())
            return line.text(); // no reader has seen it
        const Attendee &read = before.attendees[next++];
        const QString key = addressKey(read.email);
        const auto wanted = std::ranges::find(missing, key, &Attendee::id);
        if (wanted == missing.end())
            return std::nullopt;
        KeptLine kept(line.text());
        kept.setAttendee(read, *wanted, ownKeys.contains(key));
        missing.erase(wanted);
        return kept.text();
    });
    for (const Attendee &attendee : missing.first(std::min(missing.size(), EventBuilder::MaxAttendees)))
        vevent.addLine(newLine(attendee));
}
