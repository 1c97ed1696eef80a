#include "ui/dialogs/FilterPatternEditor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace {

using FilterEngine::PatternConditions;

// In the order of the combo box.
constexpr std::array Lists{ &PatternConditions::titleContains, &PatternConditions::titleExact,
                            &PatternConditions::descriptionContains, &PatternConditions::locationContains };

}

FilterPatternEditor::FilterPatternEditor(QWidget *parent)
    : QWidget(parent)
    , m_rowLayout(new QVBoxLayout)
    , m_add(new QPushButton(tr("Add Te&xt"), this))
    , m_caseSensitive(new QCheckBox(tr("&Match upper and lower case"), this))
{
    m_add->setAutoDefault(false);
    m_rowLayout->setSpacing(8);
    auto *bottom = new QHBoxLayout;
    bottom->setSpacing(12);
    bottom->addWidget(m_add);
    bottom->addWidget(m_caseSensitive);
    bottom->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addLayout(m_rowLayout);
    layout->addLayout(bottom);
    connect(m_add, &QPushButton::clicked, this, [this] {
        addRow(0, {});
        m_rows.constLast().text->setFocus();
    });
    connect(m_caseSensitive, &QCheckBox::toggled, this, &FilterPatternEditor::edited);
    addRow(0, {});
}

void FilterPatternEditor::setConditions(const PatternConditions &conditions)
{
    while (!m_rows.isEmpty())
        delete m_rows.takeLast().widget;
    for (size_t field = 0; field < Lists.size(); ++field) {
        const QStringList &texts = conditions.*Lists.at(field);
        for (const QString &text : texts)
            addRow(int(field), text);
    }
    if (m_rows.isEmpty())
        addRow(0, {});
    m_caseSensitive->setChecked(conditions.caseSensitive);
    emit edited();
}

PatternConditions FilterPatternEditor::conditions() const
{
    PatternConditions conditions;
    for (const Row &row : m_rows) {
        if (!row.text->text().trimmed().isEmpty())
            (conditions.*Lists.at(size_t(row.field->currentIndex()))).append(row.text->text());
    }
    conditions.caseSensitive = m_caseSensitive->isChecked();
    return conditions;
}

QWidget *FilterPatternEditor::firstField() const
{
    return m_rows.constFirst().text;
}

void FilterPatternEditor::addRow(int field, const QString &text)
{
    Row row{ .widget = new QWidget(this), .field = new QComboBox, .text = new QLineEdit(text) };
    row.field->addItems(
        { tr("Title contains"), tr("Title is exactly"), tr("Description contains"), tr("Location contains") });
    row.field->setCurrentIndex(field);
    row.field->setAccessibleName(tr("Where to look"));
    row.text->setPlaceholderText(tr("Text to look for"));
    row.text->setAccessibleName(tr("Text to look for"));
    row.text->setMinimumWidth(row.text->fontMetrics().averageCharWidth() * 16);
    auto *remove = new QToolButton;
    remove->setText(QStringLiteral("×"));
    remove->setAutoRaise(true);
    remove->setStyleSheet(QStringLiteral("QToolButton { padding: 5px 8px; }"));
    remove->setToolTip(tr("Remove this text"));
    remove->setAccessibleName(remove->toolTip());
    remove->setFocusPolicy(Qt::StrongFocus);

    auto *layout = new QHBoxLayout(row.widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(row.field);
    layout->addWidget(row.text, 1);
    layout->addWidget(remove);
    m_rowLayout->addWidget(row.widget);
    m_rows.append(row);
    putBeforeAddButton({ row.field, row.text, remove });

    connect(row.field, &QComboBox::currentIndexChanged, this, &FilterPatternEditor::edited);
    connect(row.text, &QLineEdit::textChanged, this, &FilterPatternEditor::edited);
    connect(remove, &QToolButton::clicked, this, [this, widget = row.widget] { removeRow(widget); });
}

void FilterPatternEditor::putBeforeAddButton(const QList<QWidget *> &fields)
{
    QWidget *before = m_add->previousInFocusChain();
    while (before != m_add && before->focusPolicy() == Qt::NoFocus)
        before = before->previousInFocusChain();
    for (QWidget *next : fields + QList<QWidget *>{ m_add, m_caseSensitive }) {
        setTabOrder(before, next);
        before = next;
    }
}

void FilterPatternEditor::removeRow(QWidget *widget)
{
    if (m_rows.size() == 1) {
        m_rows.constFirst().text->clear();
        return;
    }
    const auto found =
        std::find_if(m_rows.begin(), m_rows.end(), [widget](const Row &row) { return row.widget == widget; });
    const auto index = found - m_rows.begin();
    m_rows.erase(found);
    widget->hide();
    widget->deleteLater(); // the click came from a button in it
    m_rows.at(std::min<qsizetype>(index, m_rows.size() - 1)).text->setFocus();
    emit edited();
}
