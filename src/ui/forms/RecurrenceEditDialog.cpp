#include "ui/forms/RecurrenceEditDialog.h"

#include "calendar/RruleFormat.h"
#include "ui/theme/Theme.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStackedWidget>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int DayButtonPx = 34;
constexpr int MaxInterval = 999;
constexpr int MaxCount = 999;
constexpr int DefaultCount = 10;
constexpr int WeeklyIndex = 1;
constexpr int MonthlyIndex = 2;
constexpr int DefaultSpanMonths = 3; // until, for a rule that has no end yet
const QStringList DayCodes{ QStringLiteral("MO"), QStringLiteral("TU"), QStringLiteral("WE"), QStringLiteral("TH"),
                            QStringLiteral("FR"), QStringLiteral("SA"), QStringLiteral("SU") };

QString dayButtonSheet()
{
    return QStringLiteral("QToolButton { border: 1px solid %1; border-radius: 17px; }"
                          "QToolButton:checked { background: %2; color: %3; border-color: %2; }"
                          "QToolButton { padding: 0; }" // the letter needs the room
                          "QToolButton:focus { border: 2px solid %4; }")
        .arg(Theme::borderStrong().name(), Theme::accent().name(), Theme::textOn(Theme::accent()).name(),
             Theme::textPrimary().name());
}

/// A stored number that is larger than people choose is shown as it is all the same.
void setStored(QSpinBox *box, int value)
{
    box->setMaximum(std::max(box->maximum(), value));
    box->setValue(value);
}

}

RecurrenceEditDialog::RecurrenceEditDialog(const QString &initialRule, QDate startDate, Qt::DayOfWeek firstDayOfWeek,
                                           QWidget *parent)
    : FormDialog(tr("Repeat"), parent)
{
    buildFrequencyRow();
    m_pages = new QStackedWidget;
    m_pages->addWidget(new QWidget); // a day has nothing more to say
    m_pages->addWidget(buildWeeklyPage(firstDayOfWeek));
    m_pages->addWidget(buildMonthlyPage());
    m_pages->addWidget(new QWidget);
    body()->addWidget(m_pages);
    buildEnds(firstDayOfWeek);
    m_preview = makeHint({});
    m_preview->setObjectName(QStringLiteral("rulePreview"));
    body()->addWidget(m_preview);
    body()->addStretch();
    addSaveButtons(tr("OK"));

    m_monthDay->setValue(startDate.isValid() ? startDate.day() : 1);
    m_nthDay->setCurrentIndex(startDate.isValid() ? startDate.dayOfWeek() - 1 : 0);
    m_nth->setCurrentIndex(startDate.isValid() ? (startDate.day() - 1) / 7 : 0); // a fifth one is the last
    m_until->setDate((startDate.isValid() ? startDate : QDate::currentDate()).addMonths(DefaultSpanMonths));
    setupFromInitial(initialRule, startDate);
    followControls();
    onFrequencyChanged();
}

void RecurrenceEditDialog::buildFrequencyRow()
{
    m_frequency = new QComboBox;
    m_frequency->addItem(tr("Daily"), QStringLiteral("DAILY"));
    m_frequency->addItem(tr("Weekly"), QStringLiteral("WEEKLY"));
    m_frequency->addItem(tr("Monthly"), QStringLiteral("MONTHLY"));
    m_frequency->addItem(tr("Yearly"), QStringLiteral("YEARLY"));
    m_frequency->setCurrentIndex(WeeklyIndex);
    m_interval = new QSpinBox;
    m_interval->setRange(1, MaxInterval);
    m_unit = new QLabel;
    auto *every = new QHBoxLayout;
    every->setSpacing(8);
    every->addWidget(m_interval);
    every->addWidget(m_unit, 1);
    QFormLayout *form = addForm();
    form->addRow(tr("&Frequency"), m_frequency);
    form->addRow(tr("&Every"), every);
    static_cast<QLabel *>(form->labelForField(every))->setBuddy(m_interval);
}

QWidget *RecurrenceEditDialog::buildWeeklyPage(Qt::DayOfWeek firstDayOfWeek)
{
    const QString letters[] = { tr("M", "Monday"), tr("T", "Tuesday"),  tr("W", "Wednesday"), tr("T", "Thursday"),
                                tr("F", "Friday"), tr("S", "Saturday"), tr("S", "Sunday") };
    auto *page = new QWidget;
    auto *row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < 7; ++i) {
        const int day = (firstDayOfWeek - 1 + i) % 7;
        auto *button = new QToolButton;
        button->setCheckable(true);
        button->setFixedSize(DayButtonPx, DayButtonPx);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setText(letters[day]);
        button->setToolTip(QLocale().standaloneDayName(day + 1));
        button->setAccessibleName(QLocale().standaloneDayName(day + 1));
        button->setStyleSheet(dayButtonSheet());
        row->addWidget(button);
        m_days.append({ button, DayCodes.at(day) });
    }
    row->addStretch();
    return page;
}

QWidget *RecurrenceEditDialog::buildMonthlyPage()
{
    m_onDay = new QRadioButton(tr("On &day of the month"));
    m_onDay->setChecked(true);
    m_monthDay = new QSpinBox;
    m_monthDay->setRange(1, 31);
    m_monthDay->setAccessibleName(tr("Day of the month"));
    m_onNth = new QRadioButton(tr("On the &nth weekday"));
    m_nth = new QComboBox;
    m_nth->setAccessibleName(tr("Which one"));
    const QString ordinals[] = { tr("first"), tr("second"), tr("third"), tr("fourth") };
    for (int i = 0; i < 4; ++i)
        m_nth->addItem(ordinals[i], i + 1);
    m_nth->addItem(tr("last"), -1);
    m_nthDay = new QComboBox;
    m_nthDay->setAccessibleName(tr("Weekday"));
    for (int day = 1; day <= 7; ++day)
        m_nthDay->addItem(QLocale().standaloneDayName(day), DayCodes.at(day - 1));

    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_onDay, 0, 0);
    grid->addWidget(m_monthDay, 0, 1);
    grid->addWidget(new QLabel(tr("of every month")), 0, 2);
    grid->addWidget(m_onNth, 1, 0);
    grid->addWidget(m_nth, 1, 1);
    grid->addWidget(m_nthDay, 1, 2);
    grid->setColumnStretch(3, 1);
    auto *group = new QButtonGroup(page);
    group->addButton(m_onDay);
    group->addButton(m_onNth);
    return page;
}

void RecurrenceEditDialog::buildEnds(Qt::DayOfWeek firstDayOfWeek)
{
    addSection(tr("Ends"));
    m_ends = new QGridLayout;
    m_never = new QRadioButton(tr("Ne&ver"));
    m_never->setChecked(true);
    m_after = new QRadioButton(tr("&After"));
    m_count = new QSpinBox;
    m_count->setRange(1, MaxCount);
    m_count->setValue(DefaultCount);
    m_count->setAccessibleName(tr("Number of occurrences"));
    m_on = new QRadioButton(tr("&On"));
    m_until = new QDateEdit;
    m_until->setCalendarPopup(true);
    //: the last day of a series, as a date pattern
    m_until->setDisplayFormat(tr("MMM d, yyyy"));
    m_until->setAccessibleName(tr("Last day"));
    Theme::applyCalendarLocale(m_until, firstDayOfWeek);
    addEnd(m_never, {});
    addEnd(m_after, { m_count, new QLabel(tr("occurrences")) });
    addEnd(m_on, { m_until });
    m_ends->setColumnStretch(3, 1);
    body()->addLayout(m_ends);
    auto *group = new QButtonGroup(this);
    for (QRadioButton *radio : { m_never, m_after, m_on })
        group->addButton(radio);
}

void RecurrenceEditDialog::addEnd(QRadioButton *radio, const QList<QWidget *> &fields)
{
    const int row = m_ends->rowCount();
    m_ends->addWidget(radio, row, 0);
    for (int i = 0; i < fields.size(); ++i)
        m_ends->addWidget(fields.at(i), row, 1 + i);
}

void RecurrenceEditDialog::followControls()
{
    connect(m_frequency, &QComboBox::currentIndexChanged, this, &RecurrenceEditDialog::onFrequencyChanged);
    const auto refresh = [this] { rebuildPreview(); };
    connect(m_interval, &QSpinBox::valueChanged, this, &RecurrenceEditDialog::onFrequencyChanged);
    for (const DayButton &day : std::as_const(m_days))
        connect(day.button, &QToolButton::toggled, this, refresh);
    for (QRadioButton *radio : { m_onDay, m_onNth, m_never, m_after, m_on })
        connect(radio, &QRadioButton::toggled, this, refresh);
    // Whoever sets a value means the choice that it belongs to.
    const auto choose = [this](QRadioButton *radio) {
        radio->setChecked(true);
        rebuildPreview();
    };
    connect(m_monthDay, &QSpinBox::valueChanged, this, [this, choose] { choose(m_onDay); });
    connect(m_nth, &QComboBox::activated, this, [this, choose] { choose(m_onNth); });
    connect(m_nthDay, &QComboBox::activated, this, [this, choose] { choose(m_onNth); });
    connect(m_count, &QSpinBox::valueChanged, this, [this, choose] { choose(m_after); });
    connect(m_until, &QDateEdit::dateChanged, this, [this, choose] { choose(m_on); });
}

void RecurrenceEditDialog::setupFromInitial(const QString &rule, QDate startDate)
{
    if (startDate.isValid()) {
        for (const DayButton &day : std::as_const(m_days))
            day.button->setChecked(day.code == DayCodes.at(startDate.dayOfWeek() - 1));
    }
    QString byDay;
    const QStringList parts = rule.split(u';', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QString key = part.section(u'=', 0, 0).trimmed().toUpper();
        const QString value = part.section(u'=', 1).trimmed();
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        if (key == u"FREQ") {
            if (const int index = m_frequency->findData(value.toUpper()); index >= 0)
                m_frequency->setCurrentIndex(index);
        } else if (key == u"INTERVAL" && isNumber) {
            setStored(m_interval, number);
        } else if (key == u"BYDAY") {
            byDay = value.toUpper();
        } else if (key == u"BYMONTHDAY" && isNumber) {
            m_onDay->setChecked(true);
            m_monthDay->setValue(number);
        } else if (key == u"COUNT" && isNumber) {
            m_after->setChecked(true);
            setStored(m_count, number);
        } else if (key == u"UNTIL") {
            m_on->setChecked(true);
            if (const QDate until = QDate::fromString(value.left(8), QStringLiteral("yyyyMMdd")); until.isValid())
                m_until->setDate(until);
        }
    }
    if (!byDay.isEmpty())
        readByDay(byDay); // what it means hangs on FREQ, which may stand behind it
}

void RecurrenceEditDialog::readByDay(const QString &value)
{
    if (frequency() == u"WEEKLY") {
        const QStringList codes = value.split(u',', Qt::SkipEmptyParts);
        for (const DayButton &day : std::as_const(m_days))
            day.button->setChecked(codes.contains(day.code));
        return;
    }
    static const QRegularExpression nth(QStringLiteral("^([+-]?\\d+)(MO|TU|WE|TH|FR|SA|SU)"));
    const QRegularExpressionMatch match = nth.match(value);
    if (frequency() != u"MONTHLY" || !match.hasMatch())
        return;
    const int ordinal = m_nth->findData(match.captured(1).toInt());
    const int day = m_nthDay->findData(match.captured(2));
    if (ordinal < 0 || day < 0)
        return;
    m_onNth->setChecked(true);
    m_nth->setCurrentIndex(ordinal);
    m_nthDay->setCurrentIndex(day);
}

void RecurrenceEditDialog::onFrequencyChanged()
{
    const int count = m_interval->value();
    const QString units[] = { tr("day(s)", nullptr, count), tr("week(s)", nullptr, count),
                              tr("month(s)", nullptr, count), tr("year(s)", nullptr, count) };
    m_unit->setText(units[m_frequency->currentIndex()]);
    m_pages->setCurrentIndex(m_frequency->currentIndex());
    const bool hasPage = m_frequency->currentIndex() == WeeklyIndex || m_frequency->currentIndex() == MonthlyIndex;
    m_pages->setVisible(hasPage);
    rebuildPreview();
}

QString RecurrenceEditDialog::frequency() const
{
    return m_frequency->currentData().toString();
}

QString RecurrenceEditDialog::monthlyPart() const
{
    if (m_onNth->isChecked())
        return QStringLiteral("BYDAY=%1%2").arg(m_nth->currentData().toInt()).arg(m_nthDay->currentData().toString());
    return QStringLiteral("BYMONTHDAY=%1").arg(m_monthDay->value());
}

QString RecurrenceEditDialog::endPart() const
{
    if (m_after->isChecked())
        return QStringLiteral("COUNT=%1").arg(m_count->value());
    if (m_on->isChecked())
        return QStringLiteral("UNTIL=") + m_until->date().toString(QStringLiteral("yyyyMMdd"));
    return {};
}

QString RecurrenceEditDialog::rrule() const
{
    QStringList parts{ QStringLiteral("FREQ=") + frequency() };
    if (m_interval->value() > 1)
        parts.append(QStringLiteral("INTERVAL=%1").arg(m_interval->value()));
    if (frequency() == u"MONTHLY")
        parts.append(monthlyPart());
    if (frequency() == u"WEEKLY") {
        QStringList codes;
        for (const DayButton &day : m_days) {
            if (day.button->isChecked())
                codes.append(day.code);
        }
        if (!codes.isEmpty())
            parts.append(QStringLiteral("BYDAY=") + codes.join(u','));
    }
    if (const QString end = endPart(); !end.isEmpty())
        parts.append(end);
    return parts.join(u';');
}

QString RecurrenceEditDialog::previewText() const
{
    return m_preview->text();
}

void RecurrenceEditDialog::rebuildPreview()
{
    m_preview->setText(RruleFormat::humanReadable(rrule()));
}
