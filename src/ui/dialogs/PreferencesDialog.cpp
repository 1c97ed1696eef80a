#include "ui/dialogs/PreferencesDialog.h"

#include "app/state/AppState.h"
#include "app/state/DefaultCalendar.h"
#include "calendar/services/TimeFormat.h"
#include "storage/PreferencesRepository.h"
#include "ui/dialogs/ColorButton.h"
#include "ui/dialogs/ImportDialog.h"
#include "ui/dialogs/SettingFields.h"
#include "ui/theme/Theme.h"
#include "ui/theme/ThemeManager.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSettings>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int MinFontPercent = 70;
constexpr int MaxFontPercent = 200;
constexpr int FontStepPercent = 10;
constexpr int FontScaleDelayMs = 300; // each step lays the whole program out again
constexpr int HoursInDay = 24;
constexpr int DefaultWorkdayStart = 8;
constexpr int DefaultWorkdayEnd = 18;

constexpr QLatin1StringView WorkdayStartKey{ "ui/workdayStart" };
constexpr QLatin1StringView WorkdayEndKey{ "ui/workdayEnd" };
constexpr QLatin1StringView LanguageKey{ "ui/language" };

QFormLayout *makePageForm(QWidget *page)
{
    auto *form = new QFormLayout(page);
    FormDialog::styleForm(form);
    form->setContentsMargins(0, 16, 0, 0);
    return form;
}

/// For a field that stands in a row with others.
QLabel *labelFor(const QString &text, QWidget *field)
{
    auto *label = new QLabel(text);
    label->setBuddy(field);
    return label;
}

QCheckBox *makeSwitch(AppState *state, const QString &text, const QString &key, bool defaultValue)
{
    auto *box = new QCheckBox(text);
    box->setChecked(state->preferences()->getBool(key, defaultValue));
    QObject::connect(box, &QCheckBox::toggled, state,
                     [state, key](bool checked) { state->preferences()->setBool(key, checked); });
    return box;
}

}

PreferencesDialog::PreferencesDialog(AppState *state, QWidget *parent)
    : FormDialog(tr("Preferences"), parent)
    , m_state(state)
{
    auto *tabs = new QTabWidget(this);
    tabs->setDocumentMode(true);
    tabs->tabBar()->setDrawBase(false);
    tabs->addTab(buildAppearancePage(), tr("&Appearance"));
    tabs->addTab(buildCalendarPage(), tr("&Calendar"));
    tabs->addTab(buildGeneralPage(), tr("&General"));
    body()->addWidget(tabs, 1);
    addCloseButton();
}

PreferencesDialog::~PreferencesDialog()
{
    if (m_fontScaleTimer && m_fontScaleTimer->isActive())
        applyFontScale();
}

QWidget *PreferencesDialog::buildAppearancePage()
{
    auto *page = new QWidget;
    QFormLayout *form = makePageForm(page);
    ThemeManager *theme = m_state->theme();

    m_accent = new ColorButton;
    m_accent->setColor(Theme::accentOverride()); // the standard one has the same name in both modes
    auto *reset = new QPushButton(tr("&Reset"));
    reset->setAutoDefault(false);
    reset->setEnabled(!Theme::accentOverride().isEmpty());
    auto *accentRow = new QHBoxLayout;
    accentRow->setSpacing(8);
    accentRow->addWidget(m_accent);
    accentRow->addWidget(reset);
    accentRow->addStretch();
    m_fontScale = new QSpinBox;
    m_fontScale->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_fontScale->setRange(MinFontPercent, MaxFontPercent);
    m_fontScale->setSingleStep(FontStepPercent);
    m_fontScale->setSuffix(QStringLiteral(" %"));
    m_fontScale->setKeyboardTracking(false);
    m_fontScale->setValue(Theme::fontScalePercent());
    m_fontScaleTimer = new QTimer(this);
    m_fontScaleTimer->setSingleShot(true);
    m_fontScaleTimer->setInterval(FontScaleDelayMs);

    form->addRow(tr("&Theme"), SettingFields::makeThemeMode(m_state));
    form->addRow(labelFor(tr("Accent c&olor"), m_accent), accentRow);
    form->addRow(tr("&Font size"), m_fontScale);
    page->setEnabled(theme != nullptr);
    if (!theme)
        return page;
    connect(m_accent, &ColorButton::colorChanged, theme, &ThemeManager::setAccentOverride);
    connect(reset, &QPushButton::clicked, theme, [theme] { theme->setAccentOverride({}); });
    const auto showAccent = [this, reset] {
        m_accent->setColor(Theme::accentOverride());
        reset->setEnabled(!Theme::accentOverride().isEmpty());
    };
    connect(theme, &ThemeManager::accentChanged, this, showAccent);
    connect(theme, &ThemeManager::modeChanged, this, showAccent);
    connect(m_fontScale, &QSpinBox::valueChanged, m_fontScaleTimer, qOverload<>(&QTimer::start));
    connect(m_fontScaleTimer, &QTimer::timeout, this, &PreferencesDialog::applyFontScale);
    return page;
}

void PreferencesDialog::applyFontScale()
{
    m_fontScaleTimer->stop();
    m_state->theme()->applyFontScalePercent(m_fontScale->value(), true);
}

QWidget *PreferencesDialog::buildCalendarPage()
{
    auto *page = new QWidget;
    QFormLayout *form = makePageForm(page);
    m_workdayStart = new QComboBox;
    m_workdayEnd = new QComboBox;
    m_workdayStart->setAccessibleName(tr("Workday begins"));
    m_workdayEnd->setAccessibleName(tr("Workday ends"));
    fillWorkdayHours();
    connect(m_workdayStart, &QComboBox::activated, this, [this] { onWorkdayChanged(true); });
    connect(m_workdayEnd, &QComboBox::activated, this, [this] { onWorkdayChanged(false); });
    auto *workday = new QHBoxLayout;
    workday->setSpacing(8);
    workday->addWidget(m_workdayStart, 1);
    workday->addWidget(new QLabel(QStringLiteral("–")));
    workday->addWidget(m_workdayEnd, 1);

    QComboBox *timeFormat = SettingFields::makeTimeFormat(m_state);
    connect(timeFormat, &QComboBox::activated, this, &PreferencesDialog::fillWorkdayHours);
    auto *defaultCalendar = new QComboBox;
    fillDefaultCalendar(defaultCalendar);

    form->addRow(tr("&First day of the week"), SettingFields::makeWeekStart(m_state));
    form->addRow(QString(), makeSwitch(m_state, tr("Show week n&umbers"), QStringLiteral("ui/showWeekNumbers"), false));
    form->addRow(labelFor(tr("&Workday"), m_workdayStart), workday);
    form->addRow(tr("&Time format"), timeFormat);
    form->addRow(tr("Calendar for &new events"), defaultCalendar);
    return page;
}

void PreferencesDialog::fillWorkdayHours()
{
    const auto fill = [this](QComboBox *combo, int first, int last, const QString &key, int defaultHour) {
        combo->clear();
        for (int hour = first; hour <= last; ++hour)
            combo->addItem(TimeFormat::formatTime(m_state, QTime(hour % HoursInDay, 0)), hour);
        combo->setCurrentIndex(combo->findData(qBound(first, m_state->preferences()->getInt(key, defaultHour), last)));
    };
    fill(m_workdayStart, 0, HoursInDay - 1, WorkdayStartKey, DefaultWorkdayStart);
    fill(m_workdayEnd, 1, HoursInDay, WorkdayEndKey, DefaultWorkdayEnd);
}

void PreferencesDialog::onWorkdayChanged(bool startMoved)
{
    int start = m_workdayStart->currentData().toInt();
    int end = m_workdayEnd->currentData().toInt();
    if (start >= end) { // the hour that was chosen stays, the other one gives way
        if (startMoved)
            end = start + 1;
        else
            start = end - 1;
    }
    m_state->preferences()->setInt(WorkdayStartKey, start);
    m_state->preferences()->setInt(WorkdayEndKey, end);
    fillWorkdayHours();
}

void PreferencesDialog::fillDefaultCalendar(QComboBox *combo)
{
    combo->addItem(tr("Automatic"), QString());
    combo->addItem(tr("The one used last"), DefaultCalendar::sentinel());
    combo->insertSeparator(combo->count());
    ImportDialog::fillCalendarCombo(m_state, combo);
    const QString key = DefaultCalendar::defaultKey(false);
    combo->setCurrentIndex(qMax(0, combo->findData(m_state->preferences()->get(key, QString()))));
    connect(combo, &QComboBox::activated, this, [this, combo, key] {
        // Also the empty text of "Automatic" is stored: taking the key away would signal no change.
        m_state->preferences()->set(key, combo->currentData().toString());
    });
}

QWidget *PreferencesDialog::buildGeneralPage()
{
    auto *page = new QWidget;
    QFormLayout *form = makePageForm(page);
    auto *language = new QComboBox;
    fillLanguages(language);
    form->addRow(tr("&Language"), language);
    form->addRow(QString(), makeHint(tr("A new language takes effect at the next launch.")));
    form->addRow(QString(), makeSwitch(m_state, tr("Start &minimized"), QStringLiteral("ui/startMinimized"), false));
    return page;
}

void PreferencesDialog::fillLanguages(QComboBox *combo)
{
    combo->addItem(tr("Like the system"), QStringLiteral("system"));
    combo->addItem(QStringLiteral("English"), QStringLiteral("en"));
    combo->addItem(QStringLiteral("Español"), QStringLiteral("es"));
    combo->addItem(QStringLiteral("Deutsch"), QStringLiteral("de"));
    combo->addItem(QStringLiteral("Français"), QStringLiteral("fr"));
    combo->addItem(QStringLiteral("日本語"), QStringLiteral("ja"));
    // Kept apart from the other settings: translations load before the database opens.
    const QString chosen = QSettings().value(LanguageKey, QStringLiteral("system")).toString();
    combo->setCurrentIndex(qMax(0, combo->findData(chosen)));
    connect(combo, &QComboBox::activated, this,
            [combo] { QSettings().setValue(LanguageKey, combo->currentData().toString()); });
}
