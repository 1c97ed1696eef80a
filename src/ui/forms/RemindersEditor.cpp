#include "ui/forms/RemindersEditor.h"

#include "ui/forms/CompoundField.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int MinutesPerHour = 60;
constexpr int MinutesPerDay = 24 * MinutesPerHour;
constexpr int FirstSuggestion = 10; // of a new row

class Tr {
    Q_DECLARE_TR_FUNCTIONS(RemindersEditor)

public:
    struct Preset {
        int minutes;
        QString text;
    };

    static QList<Preset> presets()
    {
        return { { 0, tr("At time of event") },   { 5, tr("5 minutes before") },   { 10, tr("10 minutes before") },
                 { 15, tr("15 minutes before") }, { 30, tr("30 minutes before") }, { 60, tr("1 hour before") },
                 { 120, tr("2 hours before") },   { 1440, tr("1 day before") },    { 2880, tr("2 days before") },
                 { 10080, tr("1 week before") } };
    }

    /// Of a stored value that is none of the presets.
    static QString otherText(int minutes)
    {
        if (minutes < MinutesPerHour)
            return tr("%1 minutes before").arg(minutes);
        if (minutes % MinutesPerHour != 0)
            return tr("%1 hours %2 minutes before").arg(minutes / MinutesPerHour).arg(minutes % MinutesPerHour);
        if (minutes < MinutesPerDay)
            return tr("%1 hours before").arg(minutes / MinutesPerHour);
        return tr("%1 days before").arg(minutes / MinutesPerDay);
    }
};

}

RemindersEditor::RemindersEditor(QWidget *parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
    , m_add(new QPushButton(tr("+ Add reminder")))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_add->setAutoDefault(false);
    m_column->addWidget(m_add, 0, Qt::AlignLeft);
    setFirstControl(this, m_add);
    connect(m_add, &QPushButton::clicked, this, [this] {
        addRow(FirstSuggestion);
        m_rows.constLast()->setFocus();
        emit changed();
    });
}

void RemindersEditor::setMinutes(const QList<int> &minutesBefore)
{
    while (!m_rows.isEmpty())
        removeRow(m_rows.constLast()->parentWidget());
    for (const int minutes : minutesBefore)
        addRow(minutes);
}

QList<int> RemindersEditor::minutes() const
{
    QList<int> result;
    for (const QComboBox *row : m_rows)
        result.append(row->currentData().toInt());
    return result;
}

void RemindersEditor::setReadOnly(bool readOnly)
{
    m_add->setVisible(!readOnly);
    for (QComboBox *row : std::as_const(m_rows)) {
        row->parentWidget()->findChild<QToolButton *>()->setVisible(!readOnly);
        // Nothing else to choose: the text of a disabled box is hard to read.
        for (int item = row->count() - 1; item >= 0 && readOnly; --item) {
            if (item != row->currentIndex())
                row->removeItem(item);
        }
    }
}

void RemindersEditor::addRow(int minutes)
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *combo = new QComboBox;
    combo->setAccessibleName(tr("Reminder"));
    const QList<Tr::Preset> presets = Tr::presets();
    for (const Tr::Preset &preset : presets)
        combo->addItem(preset.text, preset.minutes);
    if (combo->findData(minutes) < 0)
        combo->addItem(Tr::otherText(minutes), minutes);
    combo->setCurrentIndex(combo->findData(minutes));
    connect(combo, &QComboBox::activated, this, &RemindersEditor::changed);
    QToolButton *remove = makeRemoveButton(tr("Remove reminder"));
    connect(remove, &QToolButton::clicked, this, [this, row] {
        removeRow(row);
        m_add->setFocus();
        emit changed();
    });
    layout->addWidget(combo, 1);
    layout->addWidget(remove);
    m_column->insertWidget(m_column->count() - 1, row);
    setTabStopsBefore(m_add, { combo, remove });
    m_rows.append(combo);
}

void RemindersEditor::removeRow(QWidget *row)
{
    m_rows.removeIf([row](const QComboBox *combo) { return combo->parentWidget() == row; });
    m_column->removeWidget(row);
    row->hide();
    row->deleteLater(); // the click comes from inside it
}
