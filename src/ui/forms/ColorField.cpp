#include "ui/forms/ColorField.h"

#include "ui/dialogs/ColorButton.h"
#include "ui/forms/CompoundField.h"

#include <QHBoxLayout>

ColorField::ColorField(const QString &dialogTitle, QWidget *parent)
    : QWidget(parent)
    , m_button(new ColorButton)
    , m_clear(new QPushButton(tr("Use calendar color")))
{
    m_button->setDialogTitle(dialogTitle);
    m_clear->setAutoDefault(false);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_button);
    row->addWidget(m_clear);
    row->addStretch();
    setFirstControl(this, m_button);
    connect(m_button, &ColorButton::colorChanged, this, [this](const QString &color) {
        setColor(color);
        emit colorChanged(color);
    });
    connect(m_clear, &QPushButton::clicked, this, [this] {
        m_button->setFocus(); // the button that was clicked goes
        setColor({});
        emit colorChanged({});
    });
    refresh();
}

void ColorField::setColor(const QString &color)
{
    m_color = color;
    refresh();
}

void ColorField::setCalendarColor(const QString &color)
{
    m_calendarColor = color;
    refresh();
}

void ColorField::refresh()
{
    m_button->setColor(m_color.isEmpty() ? m_calendarColor : m_color);
    m_clear->setVisible(!m_color.isEmpty());
}
