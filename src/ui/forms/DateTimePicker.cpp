#include "ui/forms/DateTimePicker.h"

#include "ui/forms/CompoundField.h"
#include "ui/theme/Theme.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDateEdit>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>

namespace {

constexpr int StepMinutes = 15;
constexpr int MinutesPerDay = 24 * 60;
constexpr int MinutesPerHour = 60;
constexpr int VisibleItems = 12;
constexpr int TimeChars = 9;
constexpr int ListMarginPx = 32; // for the scroll bar

}

DateTimePicker::DateTimePicker(Qt::DayOfWeek firstDayOfWeek, QWidget *parent)
    : QWidget(parent)
    , m_date(new QDateEdit)
    , m_time(new QComboBox)
    , m_committed(0, 0)
{
    m_date->setCalendarPopup(true);
    //: a date in a form, as a date pattern
    m_date->setDisplayFormat(tr("ddd, MMM d, yyyy"));
    Theme::applyCalendarLocale(m_date, firstDayOfWeek);
    m_time->setEditable(true);
    m_time->setInsertPolicy(QComboBox::NoInsert);
    m_time->setMaxVisibleItems(VisibleItems);
    // As wide as a time, and the list as wide as its durations: start and end stand in line.
    m_time->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_time->setMinimumContentsLength(TimeChars);
    m_time->setCompleter(nullptr); // "9" is a time, and not the beginning of "9:15 PM"
    m_time->installEventFilter(this); // it has the focus, and not its line edit
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_date, 3);
    row->addWidget(m_time, 2);
    setFirstControl(this, m_date);
    setAccessibleNames(tr("Date"), tr("Time"));
    connect(m_date, &QDateEdit::dateChanged, this, &DateTimePicker::onDateEdited);
    connect(m_time, &QComboBox::activated, this, &DateTimePicker::onTimeCommit);
    connect(m_time->lineEdit(), &QLineEdit::editingFinished, this, &DateTimePicker::onTimeCommit);
    populateTimeOptions();
}

QString DateTimePicker::pattern() const
{
    return m_use24Hour ? QStringLiteral("HH:mm") : QStringLiteral("h:mm AP");
}

QDateTime DateTimePicker::dateTime() const
{
    return { m_date->date(), m_dateOnly ? QTime(0, 0) : m_committed };
}

QDate DateTimePicker::date() const
{
    return m_date->date();
}

void DateTimePicker::setDateTime(const QDateTime &dateTime)
{
    const QDateTime local = dateTime.toLocalTime();
    m_committed = QTime(local.time().hour(), local.time().minute());
    setDate(local.date());
}

void DateTimePicker::setDate(QDate date)
{
    const QSignalBlocker quiet(m_date);
    if (date < m_date->minimumDate())
        m_date->clearMinimumDate();
    m_date->setDate(date);
    populateTimeOptions();
    if (m_reference)
        holdBehindReference();
}

void DateTimePicker::setDateOnly(bool dateOnly)
{
    m_dateOnly = dateOnly;
    m_time->setVisible(!dateOnly);
    if (m_reference)
        onReferenceChanged();
}

void DateTimePicker::setUse24Hour(bool use24Hour)
{
    m_use24Hour = use24Hour;
    populateTimeOptions();
}

void DateTimePicker::setReadOnly(bool readOnly)
{
    m_date->setReadOnly(readOnly);
    m_date->setButtonSymbols(readOnly ? QAbstractSpinBox::NoButtons : QAbstractSpinBox::UpDownArrows);
    m_isReadOnly = readOnly;
    m_time->lineEdit()->setReadOnly(readOnly);
    populateTimeOptions();
}

void DateTimePicker::setAccessibleNames(const QString &date, const QString &time)
{
    m_date->setAccessibleName(date);
    m_time->setAccessibleName(time);
}

void DateTimePicker::setRelativeTo(DateTimePicker *reference)
{
    m_reference = reference;
    connect(reference, &DateTimePicker::dateTimeChanged, this, &DateTimePicker::onReferenceChanged);
    onReferenceChanged();
}

void DateTimePicker::onReferenceChanged()
{
    if (!m_reference || !m_reference->dateTime().isValid())
        return;
    holdBehindReference();
    populateTimeOptions();
}

// The end never lies before the start; a whole day compares by date alone.
void DateTimePicker::holdBehindReference()
{
    const QDateTime from = m_reference->dateTime();
    const QSignalBlocker quiet(m_date);
    m_date->setMinimumDate(from.date());
    if (dateTime() >= from)
        return;
    m_date->setDate(from.date());
    if (!m_dateOnly)
        m_committed = from.time();
    populateTimeOptions();
}

void DateTimePicker::populateTimeOptions()
{
    const QSignalBlocker quiet(m_time);
    m_time->clear();
    const bool isSameDay = m_reference && m_reference->date() == m_date->date() && !m_reference->isDateOnly();
    const QTime from = isSameDay ? m_reference->dateTime().time() : QTime(0, 0);
    for (int minute = 0; minute < MinutesPerDay && !m_isReadOnly; minute += StepMinutes) {
        const QTime time = QTime(0, 0).addSecs(minute * 60);
        if (isSameDay && time < from)
            continue;
        QString text = QLocale().toString(time, pattern());
        if (isSameDay && time > from)
            text += QStringLiteral("  (%1)").arg(durationText(from.secsTo(time) / 60));
        m_time->addItem(text, time);
    }
    m_time->view()->setMinimumWidth(m_time->view()->sizeHintForColumn(0) + ListMarginPx);
    showTime();
}

void DateTimePicker::showTime()
{
    const QSignalBlocker quiet(m_time);
    m_time->setCurrentIndex(m_time->findData(m_committed));
    m_time->setEditText(QLocale().toString(m_committed, pattern()));
}

void DateTimePicker::onDateEdited(QDate)
{
    if (m_reference)
        holdBehindReference();
    populateTimeOptions();
    emit dateTimeChanged(dateTime());
}

void DateTimePicker::onTimeCommit()
{
    const std::optional<QTime> typed = parseTimeText(m_time->currentText());
    if (!typed || *typed == m_committed)
        return showTime();
    m_committed = *typed;
    if (m_reference)
        holdBehindReference();
    populateTimeOptions();
    emit dateTimeChanged(dateTime());
}

bool DateTimePicker::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey || watched != m_time || !m_time->lineEdit()->isModified())
        return QWidget::eventFilter(watched, event);
    const auto *press = static_cast<QKeyEvent *>(event);
    if (press->key() == Qt::Key_Escape && event->type() == QEvent::KeyPress) {
        showTime(); // takes back what was typed, and closes the form only the next time
        return true;
    }
    if (press->key() != Qt::Key_Return && press->key() != Qt::Key_Enter)
        return QWidget::eventFilter(watched, event);
    // Return takes over what was typed, and is not yet meant for the form's default button. With Ctrl it
    // stores the form, which leaves the focus where it is: the shortcut finds the time taken over.
    if (event->type() == QEvent::KeyPress || (press->modifiers() & Qt::ControlModifier))
        onTimeCommit();
    return event->type() == QEvent::KeyPress;
}

std::optional<QTime> DateTimePicker::parseTimeText(const QString &text)
{
    const QString typed = text.section(u'(', 0, 0).trimmed();
    const QStringList formats{ QStringLiteral("h:mm AP"), QStringLiteral("h:mm ap"), QStringLiteral("h:mmAP"),
                               QStringLiteral("h:mmap"),  QStringLiteral("h AP"),    QStringLiteral("h ap"),
                               QStringLiteral("hAP"),     QStringLiteral("hap"),     QStringLiteral("hh:mm"),
                               QStringLiteral("h:mm"),    QStringLiteral("HH:mm"),   QStringLiteral("HH"),
                               QStringLiteral("h"),       QStringLiteral("HHmm"),    QStringLiteral("h.mm"),
                               QStringLiteral("H.mm") };
    if (typed.isEmpty())
        return std::nullopt;
    // The list shows times as the user's language writes them; the formats above are those of English.
    for (const QString &shown : { QStringLiteral("h:mm AP"), QStringLiteral("HH:mm") }) {
        if (const QTime time = QLocale().toTime(typed, shown); time.isValid())
            return time;
    }
    for (const QString &format : formats) {
        if (const QTime time = QTime::fromString(typed, format); time.isValid())
            return time;
    }
    return std::nullopt;
}

QString DateTimePicker::durationText(int minutes)
{
    const int hours = minutes / MinutesPerHour;
    const int rest = minutes % MinutesPerHour;
    if (hours == 0)
        return tr("%1 min").arg(rest);
    return rest == 0 ? tr("%1 hr").arg(hours) : tr("%1 hr %2 min").arg(hours).arg(rest);
}
