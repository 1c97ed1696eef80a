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

QRect inDialog(const QWidget *widget)
{
    return { widget->mapTo(widget->window(), QPoint()), widget->size() };
}

/// Fields in the order of Tab, from the first one of the dialog.
QList<QWidget *> tabStops(QDialog *dialog)
{
    QList<QWidget *> stops;
    for (QWidget *w = dialog->nextInFocusChain(); w != dialog; w = w->nextInFocusChain()) {
        if (w->isVisibleTo(dialog) && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus) && w->window() == dialog
            && !w->focusProxy())
            stops.append(w);
    }
    return stops;
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
            checkTabOrder(dialog.get());
            checkTexts(dialog.get());
            QVERIFY(dialog->width() <= 1000);
            if (QTest::currentTestFailed())
                return;
        }
    }

private:
    static void checkTabOrder(QDialog *dialog)
    {
        const QList<QWidget *> stops = tabStops(dialog);
        QVERIFY(stops.size() > 1);
        for (qsizetype i = 1; i < stops.size(); ++i) {
            const QRect before = inDialog(stops.at(i - 1));
            const QRect now = inDialog(stops.at(i));
            const bool below = now.center().y() > before.center().y();
            const bool rightOf = now.left() >= before.right();
            const bool sideButton = i == stops.size() - 1 && now.left() < before.left(); // "Delete" comes last
            const QString problem = nameOf(stops.at(i)) + QStringLiteral(" after ") + nameOf(stops.at(i - 1));
            QVERIFY2(below || rightOf || sideButton, qPrintable(problem));
        }
    }

    static void checkTexts(QDialog *dialog)
    {
        const QList<QWidget *> widgets = dialog->findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            const auto *label = qobject_cast<QLabel *>(widget);
            const auto *button = qobject_cast<QAbstractButton *>(widget);
            const auto *combo = qobject_cast<QComboBox *>(widget);
            if (!widget->isVisibleTo(dialog) || (!label && !button && !combo))
                continue;
            const QSize wanted = combo ? combo->minimumSizeHint() : widget->sizeHint();
            bool fits = widget->width() >= wanted.width() && widget->height() >= wanted.height();
            if (label && label->wordWrap())
                fits = widget->height() >= widget->heightForWidth(widget->width());
            QVERIFY2(fits, qPrintable(nameOf(widget) + QStringLiteral(" is cut")));
            const bool inside = widget->parentWidget()->rect().contains(widget->geometry());
            const bool scrolls = qobject_cast<QAbstractScrollArea *>(widget->parentWidget()->parentWidget());
            QVERIFY2(inside || scrolls, qPrintable(nameOf(widget) + QStringLiteral(" reaches out of its parent")));
        }
    }

    static QString nameOf(const QWidget *widget)
    {
        return QLatin1StringView(widget->metaObject()->className()) + u' ' + widget->property("text").toString();
    }

    QFont m_font;
};

QTEST_MAIN(tst_DialogLayout)
#include "tst_DialogLayout.moc"
