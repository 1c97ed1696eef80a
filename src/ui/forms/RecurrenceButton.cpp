#include "ui/forms/RecurrenceButton.h"

#include "calendar/RruleFormat.h"
#include "ui/forms/RecurrenceEditDialog.h"
#include "ui/theme/Theme.h"

#include <QMenu>

namespace {

constexpr int MaxChars = 90;

}

RecurrenceButton::RecurrenceButton(Qt::DayOfWeek firstDayOfWeek, QWidget *parent)
    : QPushButton(parent)
    , m_firstDayOfWeek(firstDayOfWeek)
{
    setAutoDefault(false);
    setStyleSheet(QStringLiteral("text-align: left;"));
    connect(this, &QPushButton::clicked, this, &RecurrenceButton::onClicked);
    refresh();
}

void RecurrenceButton::setRule(const QString &rule)
{
    m_rule = rule;
    refresh();
}

void RecurrenceButton::onClicked()
{
    if (m_rule.isEmpty())
        return openEditor();
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Edit…"), this, &RecurrenceButton::openEditor);
    menu->addAction(tr("Do not repeat"), this, [this] { change({}); });
    menu->popup(mapToGlobal(rect().bottomLeft()));
}

void RecurrenceButton::openEditor()
{
    auto *dialog = new RecurrenceEditDialog(m_rule, m_startDate, m_firstDayOfWeek, this);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { change(dialog->rrule()); });
    dialog->open();
}

void RecurrenceButton::change(const QString &rule)
{
    setRule(rule);
    emit ruleChanged(rule);
}

void RecurrenceButton::refresh()
{
    QString text = RruleFormat::humanReadable(m_rule);
    const bool isLong = text.size() > MaxChars;
    setToolTip(isLong ? Theme::plainToolTip(text) : QString());
    if (isLong) // a foreign rule must not make the form wider than the screen
        text = text.left(MaxChars) + u'…';
    setText(text.isEmpty() ? tr("Does not repeat") : Theme::plainLabel(text));
}
