#include "support/DialogLayout.h"
#include "support/ScratchState.h"
#include "ui/dialogs/FeedbackDialog.h"
#include "ui/dialogs/FilterFormDialog.h"
#include "ui/dialogs/ImportDialog.h"
#include "ui/dialogs/ManageFiltersDialog.h"
#include "ui/dialogs/ManageViewsDialog.h"
#include "ui/dialogs/PreferencesDialog.h"
#include "ui/dialogs/ViewFormDialog.h"
#include "ui/dialogs/WelcomeDialog.h"

#include <QtTest>
#include <QtWidgets>

namespace {

using MakeDialog = std::function<QDialog *(AppState *)>;

FilterRule ruleWith(const QString &conditions)
{
    FilterRule rule;
    rule.conditions = conditions;
    rule.calendarIds = QStringLiteral("[\"%1\"]").arg(ScratchState::calendarId());
    return rule;
}

QDialog *feedbackTo(const char *url)
{
    return new QuillonFeedback::FeedbackDialog({ QStringLiteral("calendar"), QLatin1StringView(url) });
}

}

Q_DECLARE_METATYPE(MakeDialog)

/// What holds for every dialog: Tab goes as one reads, and no text is cut, also with large fonts.
class tst_DialogLayout : public QObject {
    Q_OBJECT

private slots:
    void init() { m_font = QApplication::font(); }
    void cleanup() { QApplication::setFont(m_font); }

    void readsTopToBottomAndShowsItsTexts_data()
    {
        QTest::addColumn<MakeDialog>("make");
        QTest::addColumn<int>("percent");
        const QString pattern = QStringLiteral(R"({"runtimeType":"pattern","titleContains":["a","b"]})");
        const QString time = QStringLiteral(R"({"runtimeType":"time","daysOfWeek":["mon"]})");
        const QList<std::pair<const char *, MakeDialog>> dialogs{
            { "filter", [](AppState *s) { return new FilterFormDialog(s); } },
            { "filter, texts", [=](AppState *s) { return new FilterFormDialog(s, ruleWith(pattern)); } },
            { "filter, times", [=](AppState *s) { return new FilterFormDialog(s, ruleWith(time)); } },
            { "filters", [](AppState *s) { return new ManageFiltersDialog(s); } },
            { "group", [](AppState *s) { return new ViewFormDialog(s); } },
            { "groups", [](AppState *s) { return new ManageViewsDialog(s); } },
            { "import", [](AppState *s) { return new ImportDialog(s, { QString(90, u'w') }, 3); } },
            { "welcome", [](AppState *s) { return new WelcomeDialog(s); } },
            { "feedback by web", [](AppState *) { return feedbackTo("https://feedback.example.org/v1"); } },
            { "feedback by mail", [](AppState *) { return feedbackTo("mailto:makers@example.org"); } },
            { "feedback by hand", [](AppState *) { return feedbackTo(""); } },
            { "preferences", [](AppState *s) { return new PreferencesDialog(s); } },
        };
        for (const auto &[name, make] : dialogs) {
            for (const int percent : { 100, 150 })
                QTest::addRow("%s at %d%%", name, percent) << make << percent;
        }
    }

    void readsTopToBottomAndShowsItsTexts()
    {
        QFETCH(MakeDialog, make);
        QFETCH(int, percent);
        QFont font = m_font;
        font.setPointSize(font.pointSize() * percent / 100);
        QApplication::setFont(font);
        ScratchState state;
        const std::unique_ptr<QDialog> dialog(make(state.state()));
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        auto *tabs = dialog->findChild<QTabWidget *>();
        for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
            if (tabs)
                tabs->setCurrentIndex(page);
            QCoreApplication::processEvents();
            DialogLayout::checkTabOrder(dialog.get());
            DialogLayout::checkTexts(dialog.get());
            QVERIFY(dialog->width() <= 1000);
            if (QTest::currentTestFailed())
                return;
        }
    }

private:
    QFont m_font;
};

QTEST_MAIN(tst_DialogLayout)
#include "tst_DialogLayout.moc"
