#include "ui/dialogs/ImportDialog.h"

#include "app/state/AppState.h"
#include "app/state/DefaultCalendar.h"
#include "models/Account.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "ui/dialogs/PlainText.h"
#include "ui/theme/Theme.h"

#include <QCollator>
#include <QComboBox>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QString question(const QStringList &fileNames, int eventCount)
{
    const QLocale locale;
    const QString events = locale.toString(eventCount);
    if (fileNames.size() == 1) {
        return eventCount == 1
            ? ImportDialog::tr("Import 1 event from \"%1\" into:").arg(fileNames.constFirst())
            : ImportDialog::tr("Import %1 events from \"%2\" into:").arg(events, fileNames.constFirst());
    }
    const QString files = locale.toString(fileNames.size());
    return eventCount == 1 ? ImportDialog::tr("Import 1 event from %1 files into:").arg(files)
                           : ImportDialog::tr("Import %1 events from %2 files into:").arg(events, files);
}

}

ImportDialog::ImportDialog(AppState *state, const QStringList &fileNames, int eventCount, QWidget *parent)
    : FormDialog(tr("Import events"), parent)
    , m_calendar(new QComboBox(this))
{
    auto *label = new QLabel(PlainText::breakLongWords(question(fileNames, eventCount)), this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    fillCalendarCombo(state, m_calendar);
    m_calendar->setCurrentIndex(m_calendar->findData(defaultTarget(state, writableCalendars(state))));
    m_calendar->setAccessibleName(label->text());

    body()->addWidget(label);
    body()->addWidget(m_calendar);
    body()->addStretch();
    addSaveButtons(tr("Import"));
    m_calendar->setFocus();
}

QString ImportDialog::calendarId() const
{
    return m_calendar->currentData().toString();
}

QList<Calendar> ImportDialog::writableCalendars(AppState *state)
{
    QList<Calendar> calendars = state->calendars()->getAll();
    calendars.removeIf([](const Calendar &calendar) { return calendar.isReadOnly; });
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(true);
    std::stable_sort(calendars.begin(), calendars.end(), [&collator](const Calendar &a, const Calendar &b) {
        return collator.compare(a.name, b.name) < 0;
    });
    return calendars;
}

void ImportDialog::fillCalendarCombo(AppState *state, QComboBox *combo)
{
    QHash<QString, QString> accountNames;
    const QList<Account> accounts = state->accounts()->getAll();
    for (const Account &account : accounts)
        accountNames.insert(account.id, account.name.simplified());
    const QList<Calendar> calendars = writableCalendars(state);
    for (const Calendar &calendar : calendars) {
        const QString account = accountNames.value(calendar.accountId);
        const QString name = calendar.name.simplified();
        combo->addItem(Theme::calendarDotIcon(calendar.color),
                       account.isEmpty() ? name : name + QStringLiteral(" — ") + account, calendar.id);
    }
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(20);
}

QString ImportDialog::defaultTarget(AppState *state, const QList<Calendar> &writable)
{
    const auto idWhere = [&writable](auto &&matches) {
        const auto found = std::find_if(writable.begin(), writable.end(), matches);
        return found == writable.end() ? QString() : found->id;
    };
    // The setting may name a calendar that is gone or has become read-only since.
    const QString preferred = DefaultCalendar::preferredCalendarId(state->preferences(), false);
    QString id = idWhere([&preferred](const Calendar &calendar) { return calendar.id == preferred; });
    if (id.isEmpty())
        id = idWhere([](const Calendar &calendar) { return calendar.isDefault; });
    return id.isEmpty() && !writable.isEmpty() ? writable.constFirst().id : id;
}
