#include "ui/dialogs/FormDialog.h"

#include "ui/dialogs/InlineMessage.h"
#include "ui/dialogs/Prompt.h"
#include "ui/theme/Theme.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int Margin = 16;
constexpr int Spacing = 12;
constexpr int RowSpacing = 8;
constexpr int MinWidth = 480;
constexpr int ProgramIconSize = 64;
constexpr double ScreenShare = 0.85; // of the height; what does not fit scrolls

/// A list that takes what is left has a least height, of which the height for a width knows nothing.
int wantedHeight(const QLayout *layout, int width)
{
    if (!layout->hasHeightForWidth())
        return layout->sizeHint().height();
    return qMax(layout->heightForWidth(width), layout->minimumHeightForWidth(width));
}

/// Takes the size that its content wants as long as the screen has it, and scrolls only beyond that.
class BodyArea : public QScrollArea {
public:
    explicit BodyArea(QWidget *parent)
        : QScrollArea(parent)
    {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFocusPolicy(Qt::NoFocus);
        viewport()->setAutoFillBackground(false);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        const QSize size = widget()->sizeHint();
        return bounded(size, wantedHeight(widget()->layout(), fullWidth(size)), ScreenShare);
    }
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        const QSize size = widget()->minimumSizeHint();
        const QLayout *layout = widget()->layout();
        const bool wraps = layout->hasHeightForWidth();
        return bounded(size, wraps ? layout->minimumHeightForWidth(fullWidth(size)) : size.height(), 0.6);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest)
            followContent();
        return QScrollArea::eventFilter(watched, event);
    }

    void resizeEvent(QResizeEvent *event) override
    {
        QScrollArea::resizeEvent(event);
        followContent();
    }

private:
    /// Wrapped text needs another height for another width, of which a scroll area knows nothing: it would cut it.
    void followContent()
    {
        const QLayout *layout = widget()->layout();
        if (layout->hasHeightForWidth())
            widget()->setMinimumHeight(layout->minimumHeightForWidth(viewport()->width()));
        updateGeometry();
    }
    /// The width of the content while nothing scrolls.
    [[nodiscard]] int fullWidth(QSize size) const { return qMax(qMax(size.width(), width()), minimumWidth()); }
    [[nodiscard]] QSize bounded(QSize size, int height, double screenShare) const
    {
        const int highest = int(screen()->availableGeometry().height() * screenShare);
        if (height <= highest)
            return { size.width(), height };
        return { size.width() + verticalScrollBar()->sizeHint().width(), highest };
    }
};

}

FormDialog::FormDialog(const QString &title, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(title);
    setMinimumWidth(MinWidth);
    setSizeGripEnabled(false);

    m_area = new BodyArea(this);
    auto *content = new QWidget;
    m_body = new QVBoxLayout(content);
    m_body->setContentsMargins(0, 0, 0, 0);
    m_body->setSpacing(Spacing);
    m_area->setWidget(content);
    m_area->setMinimumWidth(MinWidth - 2 * Margin);
    content->setAutoFillBackground(false);

    m_message = new InlineMessage(InlineMessage::Kind::Problem, this);
    m_buttons = new QDialogButtonBox(this);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &FormDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &FormDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Spacing);
    layout->addWidget(m_area, 1);
    layout->addWidget(m_message);
    layout->addWidget(m_buttons);
}

void FormDialog::open()
{
    setAttribute(Qt::WA_DeleteOnClose);
    QDialog::open();
}

void FormDialog::accept()
{
    if (m_busy)
        return;
    clearProblem();
    if (save())
        QDialog::accept();
}

void FormDialog::reject()
{
    if (!hasUnsavedChanges())
        return QDialog::reject();
    Prompt::question(this, tr("Discard changes?"), tr("Your changes have not been saved."), this,
                     [this] { QDialog::reject(); });
}

QString FormDialog::problemText() const
{
    return messageText(true);
}

QString FormDialog::statusText() const
{
    return messageText(false);
}

QString FormDialog::messageText(bool isProblem) const
{
    const bool isShown = !m_message->isHidden() && isProblem == (m_message->kind() == InlineMessage::Kind::Problem);
    return isShown ? m_message->text() : QString();
}

QFormLayout *FormDialog::addForm()
{
    auto *form = new QFormLayout;
    styleForm(form);
    m_body->addLayout(form);
    return form;
}

void FormDialog::styleForm(QFormLayout *form)
{
    form->setContentsMargins(0, 0, 0, 0);
    form->setHorizontalSpacing(Spacing);
    form->setVerticalSpacing(RowSpacing);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void FormDialog::addTextRow(QFormLayout *form, const QString &label, QLabel *text)
{
    auto *name = new QLabel(label);
    for (QLabel *one : { name, text })
        one->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    form->addRow(name, text);
}

void FormDialog::showEvent(QShowEvent *event)
{
    // Qt stops at two thirds of the screen for a dialog that nobody has resized yet.
    if (!event->spontaneous() && !testAttribute(Qt::WA_Resized))
        resize(size().expandedTo(sizeHint()).boundedTo(screen()->availableSize()));
    QDialog::showEvent(event);
}

void FormDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto *button = qobject_cast<QPushButton *>(focusWidget());
    if (isReturn && button && !(event->modifiers() & ~Qt::KeypadModifier))
        button->click();
    else
        QDialog::keyPressEvent(event);
}

QLabel *FormDialog::addSection(const QString &title)
{
    auto *label = new QLabel(title, this);
    label->setTextFormat(Qt::PlainText);
    label->setProperty("muted", true);
    QFont font = label->font();
    font.setPointSize(Theme::FontSizeSm);
    font.setBold(true);
    label->setFont(font);
    m_body->addWidget(label);
    return label;
}

QLabel *FormDialog::addProgramHeader(const QString &title, const QString &text)
{
    const QIcon programIcon = QApplication::windowIcon();
    auto *icon = new QLabel(this);
    icon->setPixmap(programIcon.pixmap(QSize(ProgramIconSize, ProgramIconSize), devicePixelRatioF()));
    icon->setVisible(!programIcon.isNull());
    auto *large = new QLabel(title, this);
    large->setTextFormat(Qt::PlainText);
    large->setWordWrap(true);
    QFont font = large->font();
    font.setPointSize(Theme::FontSizeXl);
    font.setBold(true);
    large->setFont(font);
    QLabel *small = makeHint(text);

    auto *texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addStretch();
    texts->addWidget(large);
    texts->addWidget(small);
    texts->addStretch();
    auto *header = new QHBoxLayout;
    header->setSpacing(16);
    header->addWidget(icon);
    header->addLayout(texts, 1);
    m_body->addLayout(header);
    return small;
}

void FormDialog::showName(QLineEdit *field, const QString &name)
{
    field->setMaxLength(std::max(MaxNameLength, int(name.size())));
    field->setText(name);
}

QLabel *FormDialog::makeHint(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setProperty("muted", true);
    return label;
}

QPushButton *FormDialog::addSaveButtons(const QString &acceptText)
{
    QPushButton *button = m_buttons->addButton(acceptText, QDialogButtonBox::AcceptRole);
    button->setDefault(true);
    m_buttons->addButton(QDialogButtonBox::Cancel);
    // Return alone belongs to the fields of several lines.
    connect(new QShortcut(Qt::CTRL | Qt::Key_Return, this), &QShortcut::activated, this, &FormDialog::accept);
    return button;
}

QPushButton *FormDialog::addSideButton(const QString &text)
{
    QPushButton *button = m_buttons->addButton(text, QDialogButtonBox::ResetRole);
    button->setAutoDefault(false);
    return button;
}

void FormDialog::addCloseButton()
{
    m_buttons->addButton(QDialogButtonBox::Close)->setAutoDefault(false);
}

void FormDialog::showProblem(const QString &text, QWidget *at)
{
    showMessage(InlineMessage::Kind::Problem, text);
    if (at)
        at->setFocus(Qt::OtherFocusReason);
}

void FormDialog::clearProblem()
{
    m_message->showText({});
}

void FormDialog::showStatus(const QString &text)
{
    showMessage(InlineMessage::Kind::Information, text);
}

void FormDialog::showMessage(InlineMessage::Kind kind, const QString &text)
{
    m_message->showText(kind, text);
    growToFit();
}

void FormDialog::growToFit()
{
    if (!isVisible())
        return;
    // What has changed deep in the body reaches the layout of the dialog by one event for each level.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    layout()->activate();
    // In height alone: what a wrapped text would like as width changes with every text.
    const int highest = int(screen()->availableGeometry().height() * ScreenShare);
    const int missing = qMin(wantedHeight(m_body, m_area->width()), highest) - m_area->height();
    if (missing > 0)
        resize(QSize(width(), height() + missing).boundedTo(screen()->availableSize()));
}

void FormDialog::setBusy(bool busy)
{
    if (m_busy == busy)
        return;
    m_busy = busy;
    if (busy)
        m_focusBeforeBusy = focusWidget();
    m_body->parentWidget()->setEnabled(!busy);
    for (QAbstractButton *button : m_buttons->buttons()) {
        if (m_buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
            button->setEnabled(!busy);
    }
    if (busy)
        setCursor(Qt::BusyCursor);
    else
        unsetCursor();
    if (!busy && m_focusBeforeBusy)
        m_focusBeforeBusy->setFocus(Qt::OtherFocusReason);
}
