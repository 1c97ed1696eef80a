#include "storage/PreferencesRepository.h"
#include "support/ScratchState.h"
#include "ui/dialogs/WelcomeDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>

#include <algorithm>

class tst_WelcomeDialog : public QObject {
    Q_OBJECT

private slots:
    void aChoiceCountsAtOnceAndIsNotSkipped()
    {
        ScratchState state;
        WelcomeDialog dialog(state.state());
        dialog.show();
        const auto combos = dialog.findChildren<QComboBox *>();
        const auto offers24 = [](const QComboBox *combo) { return combo->findData(QStringLiteral("24")) >= 0; };
        QComboBox *hours = *std::ranges::find_if(combos, offers24);
        QPushButton *close = dialog.findChild<QDialogButtonBox *>()->findChild<QPushButton *>();
        QCOMPARE(close->text(), QStringLiteral("&Skip"));
        QTest::keyClick(hours, Qt::Key_End);
        QCOMPARE(state->preferences()->get(QStringLiteral("ui/timeFormat"), QString()), QStringLiteral("24"));
        QCOMPARE(close->text(), QStringLiteral("&Done"));
        close->click();
        QVERIFY(!dialog.isVisible());
    }
};

QTEST_MAIN(tst_WelcomeDialog)
#include "tst_WelcomeDialog.moc"
