#include "ui/dialogs/WelcomeDialog.h"

#include "app/state/AppState.h"
#include "ui/dialogs/SettingFields.h"
#include "ui/theme/Theme.h"
#include "ui/theme/ThemeManager.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>

namespace {

constexpr int PromiseWidthEm = 22; // a line each in most languages
constexpr int SectionGapPx = 4; // beyond that of the form
constexpr char16_t ComputerGlyph = 0xE31E;
constexpr char16_t FilterGlyph = 0xE152;
constexpr char16_t TypingGlyph = 0xE312;

}

WelcomeDialog::WelcomeDialog(AppState *state, QWidget *parent)
    : FormDialog(tr("Welcome"), parent)
    , m_state(state)
{
    addProgramHeader(tr("Welcome to Quillon Calendar"), tr("Your days at a glance, on your own computer."));
    addPromises();
    addSettings();
    addWaysToBegin();
    body()->addStretch();
    m_close = buttons()->addButton(tr("&Skip"), QDialogButtonBox::RejectRole);
    m_close->setAutoDefault(false);
    m_close->setFocus();
}

void WelcomeDialog::addPromises()
{
    auto *column = new QVBoxLayout;
    column->setSpacing(8);
    addPromise(column, ComputerGlyph, tr("Everything is kept on this computer, so it works offline."));
    addPromise(column, FilterGlyph, tr("Filters and groups show what matters, and delete nothing."));
    addPromise(column, TypingGlyph, tr("Events can be typed in plain English: “lunch Thursday 1pm”."));
    body()->addLayout(column);
}

void WelcomeDialog::addPromise(QVBoxLayout *column, char16_t glyph, const QString &text)
{
    auto *icon = new QLabel(this);
    const int size = fontMetrics().height();
    const auto paint = [icon, glyph, size] {
        icon->setPixmap(Theme::iconFromGlyph(glyph, size, Theme::accentText()).pixmap(size));
    };
    paint();
    if (const ThemeManager *theme = m_state->theme())
        connect(theme, &ThemeManager::modeChanged, icon, paint);
    auto *label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(size * PromiseWidthEm);

    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addWidget(label, 1);
    column->addLayout(row);
}

void WelcomeDialog::addSettings()
{
    body()->addSpacing(SectionGapPx);
    addSection(tr("As you like it"));
    QFormLayout *form = addForm();
    const auto addField = [this, form](const QString &label, QComboBox *field) {
        form->addRow(label, field);
        connect(field, &QComboBox::activated, this, &WelcomeDialog::onSettingChosen);
    };
    addField(tr("&Theme"), SettingFields::makeThemeMode(m_state));
    addField(tr("Time &format"), SettingFields::makeTimeFormat(m_state));
    addField(tr("First day of the &week"), SettingFields::makeWeekStart(m_state));
}

void WelcomeDialog::addWaysToBegin()
{
    body()->addSpacing(SectionGapPx);
    addSection(tr("Your calendars"));
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    const auto addWay = [this, row](const QString &text, void (WelcomeDialog::*chosen)()) {
        auto *button = new QPushButton(text, this);
        button->setAutoDefault(false);
        row->addWidget(button, 1);
        connect(button, &QPushButton::clicked, this, [this, chosen] {
            accept();
            std::invoke(chosen, this);
        });
    };
    addWay(tr("&Import a calendar file…"), &WelcomeDialog::importRequested);
    addWay(tr("&Add a calendar…"), &WelcomeDialog::addCalendarRequested);
    body()->addLayout(row);
    body()->addWidget(makeHint(tr("A first calendar is there already. You can do all of this later.")));
}

void WelcomeDialog::onSettingChosen()
{
    m_close->setText(tr("&Done")); // nothing is skipped any more
    m_close->setDefault(true);
}
