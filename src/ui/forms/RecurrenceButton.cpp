#include "ui/forms/RecurrenceButton.h"

#include "calendar/RruleFormat.h"
#include "ui/forms/RecurrenceEditDialog.h"
#include "ui/theme/Theme.h"

#include <QMenu>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr int MaxChars = 90; // what it asks for at most, however long the rule
constexpr int MinChars = 30;

}

RecurrenceButton::RecurrenceButton(Qt::DayOfWeek firstDayOfWeek, QWidget *parent)
    : QPushButton(parent)
    , m_firstDayOfWeek(firstDayOfWeek)
{
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setStyleSheet(QStringLiteral("text-align: left;"));
    connect(this, &QPushButton::clicked, this, &RecurrenceButton::onClicked);
    refresh();
}

void RecurrenceButton::setRule(const QString &rule)
{
    m_rule = rule;
    refresh();
}

QSize RecurrenceButton::sizeHint() const
{
    return QPushButton::sizeHint().boundedTo({ fontMetrics().averageCharWidth() * MaxChars, QWIDGETSIZE_MAX });
}

QSize RecurrenceButton::minimumSizeHint() const
{
    return sizeHint().boundedTo({ fontMetrics().averageCharWidth() * MinChars, QWIDGETSIZE_MAX });
}

void RecurrenceButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const int width = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this).width();
    option.text = fontMetrics().elidedText(option.text, Qt::ElideRight, width, Qt::TextShowMnemonic);
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
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
    const QString text = RruleFormat::humanReadable(m_rule);
    setText(text.isEmpty() ? tr("Does not repeat") : Theme::plainLabel(text));
    setToolTip(Theme::plainToolTip(text));
}
