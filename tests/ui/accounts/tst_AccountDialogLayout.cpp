#include "AccountBench.h"
#include "support/DialogLayout.h"
#include "sync/ConflictResolutionService.h"
#include "ui/accounts/CalDavCertificateDialog.h"
#include "ui/accounts/CalDavConnectionDialog.h"
#include "ui/accounts/CalendarFormDialog.h"
#include "ui/accounts/ConflictResolutionDialog.h"
#include "ui/accounts/ManageSourcesDialog.h"

namespace {

using MakeDialog = std::function<QDialog *(AppState *)>;

}

Q_DECLARE_METATYPE(MakeDialog)

class tst_AccountDialogLayout : public QObject {
    Q_OBJECT

private slots:
    void init() { m_font = QApplication::font(); }
    void cleanup() { QApplication::setFont(m_font); }

    void readsTopToBottomAndShowsItsTexts_data()
    {
        QTest::addColumn<MakeDialog>("make");
        QTest::addColumn<int>("percent");
        CalDavClient::UntrustedCertInfo info;
        info.host = QString(70, u'h') + u".example.com"_s;
        info.subject = QString(120, u's');
        info.sha256 = QString(64, u'A');
        const QList<std::pair<const char *, MakeDialog>> dialogs{
            { "add", [](AppState *s) { return new CalDavConnectionDialog(s); } },
            { "edit",
              [](AppState *s) { return new CalDavConnectionDialog(s, *s->accounts()->getById(u"account"_s)); } },
            { "certificate", [info](AppState *) { return new CalDavCertificateDialog(info, u"B"_s); } },
            { "accounts", [](AppState *s) { return new ManageSourcesDialog(s); } },
            { "calendar", [](AppState *s) { return new CalendarFormDialog(s); } },
            { "conflicts", [](AppState *s) { return new ConflictResolutionDialog(s); } },
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
        AccountBench bench(u"https://cloud.example.com/"_s + QString(120, u'x'));
        bench.account.name = u"A long name of an account that wants room"_s; // first in the list
        bench.account.pendingCertSha256 = u"AB"_s;
        QVERIFY(bench.state->accounts()->update(bench.account));
        Sync::ConflictResolutionService conflicts(bench.state);
        const Event event = bench.scratch.addAllDayEvent(QString(90, u'w'), { 2026, 3, 15 });
        conflicts.recordConflict(event, event);
        bench.state->setSyncServices(&bench.scheduler, &conflicts);
        const std::unique_ptr<QDialog> dialog(make(bench.state));
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        DialogLayout::checkTabOrder(dialog.get());
        DialogLayout::checkTexts(dialog.get());
        QVERIFY(dialog->width() <= 800 * percent / 100);
    }

private:
    QFont m_font;
};

QTEST_MAIN(tst_AccountDialogLayout)
#include "tst_AccountDialogLayout.moc"
