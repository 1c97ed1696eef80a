#include "ui/dialogs/OrderedListDialog.h"

#include "ui/dialogs/TwoLineDelegate.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace {

constexpr int IdRole = Qt::UserRole;
constexpr int PinnedRole = TwoLineDelegate::DetailRole + 1;

}

OrderedListDialog::OrderedListDialog(const QString &title, const QString &emptyText, QWidget *parent)
    : FormDialog(title, parent)
    , m_list(new QListWidget(this))
    , m_empty(makeHint(emptyText))
{
    m_list->setAccessibleName(title);
    m_list->setItemDelegate(new TwoLineDelegate(m_list));
    m_list->setDragDropMode(QAbstractItemView::InternalMove);
    m_list->setDefaultDropAction(Qt::MoveAction);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_empty->setAlignment(Qt::AlignCenter);

    auto *left = new QVBoxLayout;
    left->addWidget(m_list, 1);
    left->addWidget(m_empty, 1);
    auto *column = new QVBoxLayout;
    column->setSpacing(8);
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addLayout(left, 1);
    row->addLayout(column);
    body()->addLayout(row, 1);
    buildButtons(column);
    addCloseButton();
    const int lineHeight = fontMetrics().height();
    resize(qMax(600, lineHeight * 40), qMax(400, lineHeight * 24));

    connect(m_list, &QListWidget::currentRowChanged, this, &OrderedListDialog::updateButtons);
    connect(m_list, &QListWidget::itemDoubleClicked, m_edit, &QPushButton::click);
    connect(m_list, &QListWidget::itemChanged, this, [this](QListWidgetItem *item) {
        if (!m_filling)
            setRowChecked(item->data(IdRole).toString(), item->checkState() == Qt::Checked);
    });
    // The view still works on its model when this arrives, and storing refills the list.
    connect(m_list->model(), &QAbstractItemModel::rowsMoved, this, &OrderedListDialog::storeOrder,
            Qt::QueuedConnection);
}

void OrderedListDialog::setRowChecked(const QString &, bool) { }

void OrderedListDialog::buildButtons(QVBoxLayout *column)
{
    const auto add = [this, column](const QString &text) {
        auto *button = new QPushButton(text, this);
        button->setAutoDefault(false);
        column->addWidget(button);
        return button;
    };
    m_add = add(tr("&Add…"));
    m_edit = add(tr("&Edit…"));
    m_delete = add(tr("&Delete"));
    column->addSpacing(8);
    m_up = add(tr("Move &Up"));
    m_down = add(tr("Move D&own"));
    column->addStretch();
    connect(m_add, &QPushButton::clicked, this, [this] { addRow(); });
    connect(m_edit, &QPushButton::clicked, this, [this] { editRow(currentId()); });
    connect(m_delete, &QPushButton::clicked, this, [this] { deleteRow(currentId()); });
    connect(m_up, &QPushButton::clicked, this, [this] { moveRow(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { moveRow(1); });

    const auto onKey = [this](const QKeySequence &key, QPushButton *button) {
        auto *shortcut = new QShortcut(key, m_list, nullptr, nullptr, Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    };
    onKey(Qt::Key_Return, m_edit);
    onKey(Qt::Key_Enter, m_edit);
    onKey(QKeySequence::Delete, m_delete);
    onKey(Qt::ALT | Qt::Key_Up, m_up);
    onKey(Qt::ALT | Qt::Key_Down, m_down);
}

void OrderedListDialog::refill()
{
    const QString selected = currentId();
    const QList<Row> all = rows();
    m_filling = true;
    fillList(all, selected);
    m_filling = false;
    m_list->setVisible(!all.isEmpty());
    m_empty->setVisible(all.isEmpty());
    updateButtons();
}

void OrderedListDialog::fillList(const QList<Row> &all, const QString &selectedId)
{
    const int oldRow = m_list->currentRow();
    m_list->clear();
    int selectedRow = -1;
    for (const Row &row : all) {
        auto *item = new QListWidgetItem(row.icon, row.title, m_list);
        item->setData(IdRole, row.id);
        item->setData(TwoLineDelegate::DetailRole, row.detail);
        item->setData(PinnedRole, row.pinned);
        item->setData(Qt::AccessibleDescriptionRole, row.detail);
        Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
        flags.setFlag(Qt::ItemIsDragEnabled, !row.pinned);
        flags.setFlag(Qt::ItemIsUserCheckable, row.checkable);
        item->setFlags(flags);
        if (row.checkable)
            item->setCheckState(row.checked ? Qt::Checked : Qt::Unchecked);
        if (row.id == selectedId)
            selectedRow = m_list->count() - 1;
    }
    if (selectedRow < 0) // the selected one went: the next one, or the last
        selectedRow = qMin(qMax(0, oldRow), m_list->count() - 1);
    m_list->setCurrentRow(selectedRow);
}

void OrderedListDialog::moveRow(int delta)
{
    const int from = m_list->currentRow();
    QStringList order = ids();
    order.move(from, from + delta);
    reorder(order);
}

void OrderedListDialog::storeOrder()
{
    reorder(ids());
    refill(); // a row dropped above the pinned one goes back below it
}

void OrderedListDialog::updateButtons()
{
    const auto isPinned = [this](int row) {
        const QListWidgetItem *item = m_list->item(row);
        return !item || item->data(PinnedRole).toBool();
    };
    const int row = m_list->currentRow();
    m_edit->setEnabled(row >= 0);
    m_delete->setEnabled(row >= 0 && !isPinned(row));
    m_up->setEnabled(row > 0 && !isPinned(row) && !isPinned(row - 1));
    m_down->setEnabled(row >= 0 && !isPinned(row) && row < m_list->count() - 1);
}

QString OrderedListDialog::currentId() const
{
    const QListWidgetItem *item = m_list->currentItem();
    return item ? item->data(IdRole).toString() : QString();
}

QStringList OrderedListDialog::ids() const
{
    QStringList order;
    for (int row = 0; row < m_list->count(); ++row)
        order.append(m_list->item(row)->data(IdRole).toString());
    return order;
}
