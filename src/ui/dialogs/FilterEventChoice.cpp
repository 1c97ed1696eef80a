#include "ui/dialogs/FilterEventChoice.h"

#include "models/Event.h"

#include <QLocale>

namespace {

constexpr int MaxOffered = 300;
constexpr int MaxTitleLength = 60;

QString labelOf(const Event &event)
{
    const QDate day = event.isAllDay ? event.startTime.date() : event.startTime.toLocalTime().date();
    const QString title = event.title.simplified().left(MaxTitleLength);
    return FilterEventChoice::tr("%1 · %2").arg(title.isEmpty() ? FilterEventChoice::tr("(no title)") : title,
                                                QLocale().toString(day, QLocale::ShortFormat));
}

}

FilterEventChoice::FilterEventChoice(QWidget *parent)
    : QComboBox(parent)
{
    setPlaceholderText(tr("Choose an event"));
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(24);
    setMaxVisibleItems(16);
    setCurrentIndex(-1);
}

void FilterEventChoice::offer(const QList<Event> &events)
{
    QSet<QStringList> known;
    for (int i = 0; i < count(); ++i)
        known.insert(itemData(i).toStringList());
    for (const Event &event : events) {
        const QStringList key{ event.uid, event.calendarId };
        if (event.uid.isEmpty() || known.contains(key))
            continue;
        if (count() >= MaxOffered)
            break;
        known.insert(key);
        addItem(labelOf(event), key);
    }
}

void FilterEventChoice::choose(const QString &uid, const QString &calendarId, const QString &title)
{
    const QStringList key{ uid, calendarId };
    int index = findData(key);
    if (index < 0) {
        const QString label = title.simplified().left(MaxTitleLength);
        insertItem(0, label.isEmpty() ? tr("An event that is not on this device") : label, key);
        index = 0;
    }
    setCurrentIndex(index);
}

QString FilterEventChoice::eventUid() const
{
    return currentData().toStringList().value(0);
}

QString FilterEventChoice::eventCalendarId() const
{
    return currentData().toStringList().value(1);
}
