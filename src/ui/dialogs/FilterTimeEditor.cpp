#include "ui/dialogs/FilterTimeEditor.h"

#include "app/state/AppState.h"
#include "calendar/services/TimeFormat.h"
#include "ui/dialogs/InlineMessage.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QTimeEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int DaysInWeek = 7;

}

FilterTimeEditor::FilterTimeEditor(AppState *state, QWidget *parent)
    : QWidget(parent)
    , m_warning(new InlineMessage(InlineMessage::Kind::Warning, this))
{
    const QString format = TimeFormat::eventTimeFormatString(state);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 1);
    m_exact = addTimeField(grid, tr("Starts e&xactly at"), QTime(9, 0), format);
    m_from = addTimeField(grid, tr("Starts at or af&ter"), QTime(9, 0), format);
    m_until = addTimeField(grid, tr("Starts at or &before"), QTime(17, 0), format);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addLayout(grid);
    layout->addWidget(m_warning);
    layout->addWidget(makeDays(state->firstDayOfWeek()));
    m_recurringOnly = new QCheckBox(tr("Only &repeating events"), this); // last here, last by Tab
    layout->addWidget(m_recurringOnly);
    connect(m_recurringOnly, &QCheckBox::toggled, this, &FilterTimeEditor::edited);
}

FilterTimeEditor::TimeField FilterTimeEditor::addTimeField(QGridLayout *grid, const QString &label, QTime start,
                                                           const QString &format)
{
    const TimeField field{ .on = new QCheckBox(label, this), .edit = new QTimeEdit(start, this) };
    field.edit->setDisplayFormat(format);
    field.edit->setEnabled(false);
    field.edit->setAccessibleName(QString(label).remove(u'&'));
    const int row = grid->rowCount();
    grid->addWidget(field.on, row, 0);
    grid->addWidget(field.edit, row, 1, Qt::AlignLeft);
    connect(field.on, &QCheckBox::toggled, field.edit, &QWidget::setEnabled);
    connect(field.on, &QCheckBox::toggled, this, &FilterTimeEditor::onEdited);
    connect(field.edit, &QTimeEdit::timeChanged, this, &FilterTimeEditor::onEdited);
    return field;
}

QWidget *FilterTimeEditor::makeDays(Qt::DayOfWeek firstDay)
{
    const QLocale locale;
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        auto *button = new QToolButton(this);
        button->setText(locale.standaloneDayName(day, QLocale::ShortFormat));
        button->setAccessibleName(locale.standaloneDayName(day, QLocale::LongFormat));
        button->setToolTip(button->accessibleName());
        button->setCheckable(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(button, &QToolButton::toggled, this, &FilterTimeEditor::edited);
        m_days.append(button);
    }
    auto *box = new QWidget(this);
    // Narrower than tool buttons are, and with a border, as nothing else says that they can be pressed.
    box->setStyleSheet(QStringLiteral("QToolButton { padding: 5px 4px; border: 1px solid palette(mid); }"
                                      "QToolButton:focus, QToolButton:checked { border-color: palette(highlight); }"));
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    for (int i = 0; i < DaysInWeek; ++i)
        layout->addWidget(m_days.at((firstDay - 1 + i) % DaysInWeek));
    return box;
}

void FilterTimeEditor::TimeField::set(const QString &text) const
{
    const QTime time = parseTime(text);
    on->setChecked(time.isValid());
    if (time.isValid())
        edit->setTime(time);
}

QString FilterTimeEditor::TimeField::text() const
{
    return on->isChecked() ? edit->time().toString(QStringLiteral("HH:mm")) : QString();
}

void FilterTimeEditor::setConditions(const FilterEngine::TimeConditions &conditions)
{
    m_exact.set(conditions.timeExact);
    m_from.set(conditions.rangeStart);
    m_until.set(conditions.rangeEnd);
    QSet<QString> days;
    for (const QString &token : conditions.daysOfWeek)
        days.insert(token.toLower());
    for (int i = 0; i < DaysInWeek; ++i)
        m_days.at(i)->setChecked(days.contains(dayTokens().at(i)));
    m_recurringOnly->setChecked(conditions.recurringOnly);
}

FilterEngine::TimeConditions FilterTimeEditor::conditions() const
{
    FilterEngine::TimeConditions conditions{ .timeExact = m_exact.text(),
                                             .rangeStart = m_from.text(),
                                             .rangeEnd = m_until.text(),
                                             .daysOfWeek = {},
                                             .recurringOnly = m_recurringOnly->isChecked() };
    for (int i = 0; i < DaysInWeek; ++i) {
        if (m_days.at(i)->isChecked())
            conditions.daysOfWeek.append(dayTokens().at(i));
    }
    return conditions;
}

bool FilterTimeEditor::isBlank() const
{
    FilterEngine::TimeConditions chosen = conditions();
    chosen.recurringOnly = false; // alone it matches nothing
    return chosen == FilterEngine::TimeConditions();
}

QWidget *FilterTimeEditor::firstField() const
{
    return m_exact.on;
}

void FilterTimeEditor::suggestTime(QTime start)
{
    for (const TimeField &field : { m_exact, m_from, m_until }) {
        if (!field.on->isChecked())
            field.edit->setTime(QTime(start.hour(), start.minute()));
    }
}

QTime FilterTimeEditor::parseTime(const QString &text)
{
    return QTime::fromString(text, QStringLiteral("H:mm"));
}

const QStringList &FilterTimeEditor::dayTokens()
{
    static const QStringList tokens{ QStringLiteral("mon"), QStringLiteral("tue"), QStringLiteral("wed"),
                                     QStringLiteral("thu"), QStringLiteral("fri"), QStringLiteral("sat"),
                                     QStringLiteral("sun") };
    return tokens;
}

void FilterTimeEditor::onEdited()
{
    const bool overMidnight =
        m_from.on->isChecked() && m_until.on->isChecked() && m_from.edit->time() > m_until.edit->time();
    m_warning->showText(overMidnight ? tr("A range over midnight matches nothing. Make two filters: one for the "
                                          "evening, with only \"at or after\", and one for the morning.")
                                     : QString());
    emit edited();
}
