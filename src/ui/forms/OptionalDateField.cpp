#include "ui/forms/OptionalDateField.h"

#include "ui/forms/CompoundField.h"
#include "ui/forms/DateTimePicker.h"

#include <QCheckBox>
#include <QHBoxLayout>

namespace {

const QTime FirstTime(9, 0); // of a date that gets a time

}

OptionalDateField::OptionalDateField(Qt::DayOfWeek firstDayOfWeek, bool use24Hour, QWidget *parent)
    : QWidget(parent)
    , m_has(new QCheckBox)
    , m_picker(new DateTimePicker(firstDayOfWeek))
    , m_hasTime(new QCheckBox(tr("Time")))
{
    m_picker->setUse24Hour(use24Hour);
    m_picker->setDateTime(QDateTime(QDate::currentDate(), FirstTime));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_has);
    row->addWidget(m_picker, 1);
    row->addWidget(m_hasTime);
    setFirstControl(this, m_has);
    for (QCheckBox *box : { m_has, m_hasTime }) {
        connect(box, &QCheckBox::clicked, this, [this] {
            refresh();
            emit changed();
        });
    }
    connect(m_picker, &DateTimePicker::dateTimeChanged, this, &OptionalDateField::changed);
    refresh();
}

void OptionalDateField::setAccessibleNames(const QString &date, const QString &time)
{
    m_has->setAccessibleName(tr("Has a date: %1").arg(date));
    m_picker->setAccessibleNames(date, time);
}

void OptionalDateField::setValue(const std::optional<QDateTime> &value, bool dateOnly)
{
    m_has->setChecked(value.has_value());
    m_hasTime->setChecked(value && !dateOnly);
    if (value)
        m_picker->setDateTime(dateOnly ? QDateTime(value->date(), FirstTime) : *value);
    refresh();
}

std::optional<QDateTime> OptionalDateField::value() const
{
    if (!m_has->isChecked())
        return std::nullopt;
    return isDateOnly() ? QDateTime(m_picker->date(), QTime(0, 0), Qt::UTC) : m_picker->dateTime();
}

bool OptionalDateField::isDateOnly() const
{
    return !m_hasTime->isChecked();
}

QDate OptionalDateField::date() const
{
    return m_has->isChecked() ? m_picker->date() : QDate();
}

void OptionalDateField::setReadOnly(bool readOnly)
{
    m_has->setEnabled(!readOnly);
    m_hasTime->setEnabled(!readOnly);
    m_picker->setReadOnly(readOnly);
}

void OptionalDateField::refresh()
{
    m_picker->setVisible(m_has->isChecked());
    m_picker->setDateOnly(isDateOnly());
    m_hasTime->setVisible(m_has->isChecked());
    m_has->setText(m_has->isChecked() ? QString() : tr("No date"));
}
