#include "ui/forms/AttendeesEditor.h"

#include "ui/dialogs/PlainText.h"
#include "ui/forms/CompoundField.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

AttendeesEditor::AttendeesEditor(QWidget *parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
    , m_add(new QPushButton(tr("+ Add attendee")))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_add->setAutoDefault(false);
    m_column->addWidget(m_add, 0, Qt::AlignLeft);
    setFirstControl(this, m_add);
    connect(m_add, &QPushButton::clicked, this, [this] {
        addRow({});
        m_rows.constLast().name->setFocus();
    });
}

void AttendeesEditor::setAttendees(const QList<Attendee> &attendees)
{
    while (!m_rows.isEmpty())
        removeRow(m_rows.constLast().widget);
    for (const Attendee &attendee : attendees)
        addRow(attendee);
}

QList<Attendee> AttendeesEditor::attendees() const
{
    QList<Attendee> result;
    for (const Row &row : m_rows) {
        Attendee attendee = row.original;
        attendee.name = PlainText::typed(row.name->text(), row.original.name);
        attendee.email = row.email->text().trimmed();
        if (attendee.email.compare(row.original.email.trimmed(), Qt::CaseInsensitive) != 0) {
            attendee.id.clear(); // somebody else, who has not answered yet
            attendee.status = Attendee().status;
        }
        if (!attendee.email.isEmpty())
            result.append(attendee);
    }
    return result;
}

void AttendeesEditor::setReadOnly(bool readOnly)
{
    m_add->setVisible(!readOnly);
    for (const Row &row : std::as_const(m_rows)) {
        row.name->setReadOnly(readOnly);
        row.email->setReadOnly(readOnly);
        row.widget->findChild<QToolButton *>()->setVisible(!readOnly);
    }
}

void AttendeesEditor::addRow(const Attendee &attendee)
{
    Row row{ new QWidget, new QLineEdit(attendee.name), new QLineEdit(attendee.email), attendee };
    row.name->setPlaceholderText(tr("Name"));
    row.name->setAccessibleName(tr("Name of the attendee"));
    row.email->setPlaceholderText(tr("name@example.com"));
    row.email->setAccessibleName(tr("Address of the attendee"));
    QToolButton *remove = makeRemoveButton(tr("Remove attendee"));
    connect(remove, &QToolButton::clicked, this, [this, widget = row.widget] {
        removeRow(widget);
        m_add->setFocus();
    });
    auto *layout = new QHBoxLayout(row.widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(row.name, 2);
    layout->addWidget(row.email, 3);
    layout->addWidget(remove);
    m_column->insertWidget(m_column->count() - 1, row.widget);
    setTabStopsBefore(m_add, { row.name, row.email, remove });
    m_rows.append(row);
}

void AttendeesEditor::removeRow(const QWidget *widget)
{
    const auto found =
        std::find_if(m_rows.begin(), m_rows.end(), [widget](const Row &row) { return row.widget == widget; });
    m_column->removeWidget(found->widget);
    found->widget->hide();
    found->widget->deleteLater(); // the click comes from inside it
    m_rows.erase(found);
}
