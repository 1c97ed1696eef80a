#include "ui/dialogs/KeyboardHelpDialog.h"

#include "ui/theme/Theme.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QString keysText(const QList<QKeySequence> &keys)
{
    QStringList texts;
    for (const QKeySequence &key : keys) {
        if (!key.isEmpty())
            texts.append(key.toString(QKeySequence::NativeText));
    }
    return texts.join(QStringLiteral("  ·  "));
}

}

KeyboardHelpDialog::KeyboardHelpDialog(const QList<ShortcutInfo> &shortcuts, QWidget *parent)
    : FormDialog(tr("Keyboard Shortcuts"), parent)
    , m_table(new QTreeWidget(this))
    , m_empty(makeHint(tr("No shortcut matches.")))
{
    auto *search = new QLineEdit(this);
    search->setPlaceholderText(tr("Search shortcuts"));
    search->setAccessibleName(search->placeholderText());
    search->setClearButtonEnabled(true);
    connect(search, &QLineEdit::textChanged, this, &KeyboardHelpDialog::applyFilter);

    m_table->setHeaderLabels({ tr("Action"), tr("Keys") });
    m_table->setRootIsDecorated(false);
    m_table->setItemsExpandable(false);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setAccessibleName(windowTitle());
    m_table->header()->setStretchLastSection(true);
    m_table->header()->setSectionsMovable(false);
    m_table->header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    fill(shortcuts);

    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->hide();
    body()->addWidget(search);
    body()->addWidget(m_empty);
    body()->addWidget(m_table, 1);
    addCloseButton();
    const int lineHeight = fontMetrics().height();
    resize(qMax(560, lineHeight * 36), qMax(520, lineHeight * 32));
    search->setFocus();
}

void KeyboardHelpDialog::fill(const QList<ShortcutInfo> &shortcuts)
{
    QHash<QString, QTreeWidgetItem *> groups;
    for (const ShortcutInfo &shortcut : shortcuts) {
        QTreeWidgetItem *&group = groups[shortcut.group];
        if (!group) {
            group = new QTreeWidgetItem(m_table, { shortcut.group });
            group->setFirstColumnSpanned(true);
            group->setFlags(Qt::ItemIsEnabled);
            group->setForeground(0, Theme::textMuted());
        }
        new QTreeWidgetItem(group, { shortcut.label, keysText(shortcut.keys) });
    }
    m_table->expandAll();
    m_table->resizeColumnToContents(0);
    m_table->setColumnWidth(0, m_table->columnWidth(0) + 24);
}

void KeyboardHelpDialog::applyFilter(const QString &text)
{
    const QString wanted = text.trimmed();
    bool any = false;
    for (int g = 0; g < m_table->topLevelItemCount(); ++g) {
        QTreeWidgetItem *group = m_table->topLevelItem(g);
        const bool wholeGroup = group->text(0).contains(wanted, Qt::CaseInsensitive);
        bool anyInGroup = false;
        for (int i = 0; i < group->childCount(); ++i) {
            QTreeWidgetItem *item = group->child(i);
            const bool matches = wholeGroup || item->text(0).contains(wanted, Qt::CaseInsensitive)
                || item->text(1).contains(wanted, Qt::CaseInsensitive);
            item->setHidden(!matches);
            anyInGroup = anyInGroup || matches;
        }
        group->setHidden(!anyInGroup);
        any = any || anyInGroup;
    }
    m_empty->setVisible(!any);
    m_table->setVisible(any);
}
