#include "ui/dialogs/Prompt.h"

#include "ui/dialogs/ChoiceDialog.h"
#include "ui/dialogs/PlainText.h"
#include "ui/theme/Theme.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFontDatabase>
#include <QMessageBox>
#include <QMetaObject>
#include <QPushButton>

namespace {

constexpr int IconSize = 32;
constexpr char16_t WarningGlyph = 0xE002;
constexpr char16_t QuestionGlyph = 0xE8FD;
constexpr char16_t InformationGlyph = 0xE88E;

Prompt::ScopedAnswers *s_answers = nullptr;

void setIcon(QMessageBox *box, QMessageBox::Icon icon)
{
    if (!QFontDatabase::hasFamily(Theme::iconFamily())) {
        box->setIcon(icon);
        return;
    }
    const char16_t glyph = icon == QMessageBox::Warning ? WarningGlyph
        : icon == QMessageBox::Question                 ? QuestionGlyph
                                                        : InformationGlyph;
    const QColor color = icon == QMessageBox::Warning ? Theme::warning() : Theme::accent();
    box->setIconPixmap(Theme::iconFromGlyph(glyph, IconSize, color).pixmap(IconSize));
}

QMessageBox *makeBox(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text)
{
    auto *box = new QMessageBox(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    setIcon(box, icon);
    box->setWindowTitle(title);
    box->setTextFormat(Qt::PlainText);
    box->setText(PlainText::breakLongWords(text));
    return box;
}

bool record(const QString &kind, const QString &title, const QString &text)
{
    if (!s_answers)
        return false;
    s_answers->asked.append({ kind, title, text });
    return true;
}

}

namespace Prompt {

ScopedAnswers::ScopedAnswers()
    : m_outer(s_answers)
{
    s_answers = this;
}

ScopedAnswers::~ScopedAnswers()
{
    s_answers = m_outer;
}

void warning(QWidget *parent, const QString &title, const QString &text)
{
    if (!record(QStringLiteral("warning"), title, text))
        makeBox(parent, QMessageBox::Warning, title, text)->open();
}

void information(QWidget *parent, const QString &title, const QString &text)
{
    if (!record(QStringLiteral("information"), title, text))
        makeBox(parent, QMessageBox::Information, title, text)->open();
}

void question(QWidget *parent, const QString &title, const QString &text, QObject *context, std::function<void()> onYes)
{
    if (record(QStringLiteral("question"), title, text)) {
        if (s_answers->sayYes)
            QMetaObject::invokeMethod(context, std::move(onYes), Qt::QueuedConnection);
        return;
    }
    QMessageBox *box = makeBox(parent, QMessageBox::Question, title, text);
    box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box->setDefaultButton(QMessageBox::No);
    box->setEscapeButton(QMessageBox::No);
    QObject::connect(box, &QDialog::finished, context, [onYes = std::move(onYes)](int answer) {
        if (answer == QMessageBox::Yes)
            onYes();
    });
    box->open();
}

void openFiles(QWidget *parent, const QString &title, const QString &filter, QObject *context,
               std::function<void(const QStringList &)> onFiles)
{
    if (record(QStringLiteral("openFiles"), title, filter)) {
        if (!s_answers->files.isEmpty()) {
            QMetaObject::invokeMethod(
                context, [onFiles = std::move(onFiles), files = s_answers->files] { onFiles(files); },
                Qt::QueuedConnection);
        }
        return;
    }
    auto *dialog = new QFileDialog(parent, title, {}, filter);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    QObject::connect(dialog, &QFileDialog::filesSelected, context, std::move(onFiles));
    dialog->open();
}

void chooseColor(QWidget *parent, const QString &title, const QColor &current, QObject *context,
                 std::function<void(const QColor &)> onColor)
{
    if (record(QStringLiteral("color"), title, current.name())) {
        if (s_answers->color.isValid())
            QMetaObject::invokeMethod(
                context, [onColor = std::move(onColor), color = s_answers->color] { onColor(color); },
                Qt::QueuedConnection);
        return;
    }
    auto *dialog = new QColorDialog(current, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);
    QObject::connect(dialog, &QColorDialog::colorSelected, context, std::move(onColor));
    dialog->open();
}

void choose(QWidget *parent, const QString &title, const QString &heading, const QString &text,
            const QList<Choice> &choices, QObject *context, std::function<void(int index)> onChosen)
{
    if (record(QStringLiteral("choice"), title, text)) {
        if (s_answers->choice >= 0)
            QMetaObject::invokeMethod(
                context, [onChosen = std::move(onChosen), choice = s_answers->choice] { onChosen(choice); },
                Qt::QueuedConnection);
        return;
    }
    auto *dialog = new ChoiceDialog(title, heading, text, choices, parent);
    QObject::connect(dialog, &QDialog::accepted, context,
                     [dialog, onChosen = std::move(onChosen)] { onChosen(dialog->chosen()); });
    dialog->open();
}

} // namespace Prompt
