#include "ui/accounts/ConflictResolutionDialog.h"

#include "app/state/AppState.h"
#include "calendar/DescriptionFormat.h"
#include "calendar/services/EventText.h"
#include "calendar/services/TimeFormat.h"
#include "sync/ConflictResolutionService.h"
#include "ui/dialogs/PlainText.h"
#include "ui/theme/Theme.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

namespace {

constexpr int IdRole = Qt::UserRole;
constexpr qsizetype MaxNotesLength = 600;
constexpr int ListLines = 7;
constexpr int LongestRun = 16; // two versions stand side by side

QString html(const QString &text)
{
    return PlainText::breakLongWords(text, LongestRun).toHtmlEscaped().replace(u'\n', QLatin1StringView("<br>"));
}

}

ConflictResolutionDialog::ConflictResolutionDialog(AppState *state, QWidget *parent)
    : FormDialog(tr("Sync conflicts"), parent)
    , m_state(state)
    , m_list(new QListWidget)
    , m_empty(makeHint(tr("No conflicts. Run a sync to detect any.")))
    , m_panels(new QWidget)
    , m_heading(new QLabel)
    , m_local(new QLabel)
    , m_remote(new QLabel)
{
    auto *text = new QLabel(tr("These events were edited both locally and on the server. Pick which version to keep "
                               "for each one."));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    body()->addWidget(text);
    m_list->setAccessibleName(windowTitle());
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMinimumHeight(fontMetrics().lineSpacing() * ListLines);
    m_list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // what is left over
    m_empty->setAlignment(Qt::AlignCenter);
    body()->addWidget(m_list, 1);
    body()->addWidget(m_empty, 1);
    buildPanels();
    buildButtons();
    addCloseButton();
    m_panels->setMinimumWidth(fontMetrics().height() * 36);

    connect(m_list, &QListWidget::currentRowChanged, this, &ConflictResolutionDialog::showConflict);
    connect(state->conflicts(), &Sync::ConflictResolutionService::conflictsChanged, this,
            &ConflictResolutionDialog::rebuildList);
    rebuildList();
}

void ConflictResolutionDialog::buildPanels()
{
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setWordWrap(true);
    QFont font = m_heading->font();
    font.setBold(true);
    m_heading->setFont(font);
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    const auto addPanel = [row](const QString &title, QLabel *content) {
        auto *panel = new QGroupBox(title);
        content->setTextFormat(Qt::RichText);
        content->setWordWrap(true);
        content->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        content->setTextInteractionFlags(Qt::TextSelectableByMouse);
        auto *layout = new QVBoxLayout(panel);
        layout->addWidget(content, 1);
        row->addWidget(panel, 1);
    };
    addPanel(tr("Your version (local)"), m_local);
    addPanel(tr("Server version"), m_remote);
    auto *column = new QVBoxLayout(m_panels);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_heading);
    column->addLayout(row, 1);
    body()->addWidget(m_panels, 2);
}

void ConflictResolutionDialog::buildButtons()
{
    // Not in the body, where long notes would scroll them away.
    const auto add = [this](const QString &text, void (ConflictResolutionDialog::*choose)()) {
        QPushButton *button = addSideButton(text);
        connect(button, &QPushButton::clicked, this, choose);
        m_choices.append(button);
    };
    add(tr("Keep local"), &ConflictResolutionDialog::onKeepLocal);
    add(tr("Use server version"), &ConflictResolutionDialog::onKeepServer);
    add(tr("Decide later"), &ConflictResolutionDialog::onSkip);
}

void ConflictResolutionDialog::rebuildList()
{
    const int oldRow = m_list->currentRow();
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    const QList<Sync::EventConflict> conflicts = m_state->conflicts()->conflicts();
    for (const Sync::EventConflict &conflict : conflicts) {
        auto *item = new QListWidgetItem(EventText::title(conflict.local), m_list);
        item->setData(IdRole, conflict.id);
    }
    m_list->setCurrentRow(qMin(qMax(0, oldRow), m_list->count() - 1));
    m_list->setVisible(!conflicts.isEmpty());
    m_empty->setVisible(conflicts.isEmpty());
    showConflict(m_list->currentRow());
}

void ConflictResolutionDialog::showConflict(int row)
{
    const QList<Sync::EventConflict> conflicts = m_state->conflicts()->conflicts();
    const bool isThere = row >= 0 && row < conflicts.size();
    m_panels->setVisible(isThere);
    for (QPushButton *button : std::as_const(m_choices))
        button->setEnabled(isThere);
    if (!isThere)
        return;
    const Sync::EventConflict &conflict = conflicts.at(row);
    m_heading->setText(tr("Conflict: %1").arg(PlainText::breakLongWords(EventText::title(conflict.local))));
    m_local->setText(describe(conflict.local));
    m_remote->setText(describe(conflict.remote));
    growToFit();
}

QString ConflictResolutionDialog::describe(const Event &event) const
{
    const QString safe = DescriptionFormat::toSafeHtml(event.description, {}, Theme::link().name());
    QString notes = QTextDocumentFragment::fromHtml(safe).toPlainText();
    if (notes.size() > MaxNotesLength)
        notes = notes.left(MaxNotesLength) + u'…';
    const QStringList lines{
        tr("<b>Title:</b> %1").arg(html(EventText::title(event))),
        tr("<b>When:</b> %1").arg(html(EventText::when(event, TimeFormat::eventTimeFormatString(m_state)))),
        tr("<b>Where:</b> %1").arg(html(EventText::location(event))),
        tr("<b>Notes:</b> %1").arg(html(notes)),
    };
    return lines.join(QLatin1StringView("<br>"));
}

void ConflictResolutionDialog::onKeepLocal()
{
    resolveCurrent(Sync::ConflictResolution::KeepLocal);
}

void ConflictResolutionDialog::onKeepServer()
{
    resolveCurrent(Sync::ConflictResolution::KeepServer);
}

void ConflictResolutionDialog::onSkip()
{
    resolveCurrent(Sync::ConflictResolution::Skip);
}

void ConflictResolutionDialog::resolveCurrent(Sync::ConflictResolution resolution)
{
    if (const QListWidgetItem *item = m_list->currentItem())
        m_state->conflicts()->resolve(item->data(IdRole).toString(), resolution);
}
