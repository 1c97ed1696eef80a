#include "ui/actions/DetailsPopover.h"

#include "ui/actions/PopoverPlacement.h"
#include "ui/actions/SafeTextBrowser.h"
#include "ui/dialogs/PlainText.h"
#include "ui/theme/Theme.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QDesktopServices>
#include <QGraphicsDropShadowEffect>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace {

constexpr int WidthPx = 360; // at 100 % fonts
constexpr int MarginPx = 16;
constexpr int RowGapPx = 8;
constexpr int GlyphPx = 18;
constexpr int StripePx = 4;
constexpr double HeightShare = 0.8; // of the window; what does not fit scrolls
const QString ObjectName = QStringLiteral("detailsPopover");

/// A plain frame would not be announced when it takes the focus.
QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *card = qobject_cast<DetailsPopover *>(object);
    return card ? new QAccessibleWidget(card, QAccessible::Dialog) : nullptr;
}

}

DetailsPopover::DetailsPopover(QWidget *anchor)
    : QFrame(anchor->window())
    , m_scroll(new QScrollArea(this))
    , m_buttons(new QHBoxLayout)
{
    QAccessible::installFactory(makeAccessible);
    setObjectName(ObjectName);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
    hide();
    auto *shadow = new QGraphicsDropShadowEffect(this);
    shadow->setBlurRadius(24);
    shadow->setOffset(0, 4);
    shadow->setColor(QColor(0, 0, 0, 90));
    setGraphicsEffect(shadow);

    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->viewport()->setAutoFillBackground(false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(MarginPx, MarginPx, MarginPx, MarginPx);
    layout->setSpacing(RowGapPx);
    layout->addWidget(m_scroll, 1);
    m_buttons->addStretch();
    layout->addLayout(m_buttons);
    clear();
}

void DetailsPopover::clear()
{
    if (const QWidget *focused = QApplication::focusWidget(); focused && focused != this && isAncestorOf(focused))
        setFocus(Qt::OtherFocusReason); // it goes now, and the keyboard stays here
    auto *content = new QWidget;
    content->setAutoFillBackground(false);
    m_column = new QVBoxLayout(content);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(RowGapPx);
    m_title = nullptr;
    m_rows = new QGridLayout;
    m_rows->setHorizontalSpacing(RowGapPx);
    m_rows->setVerticalSpacing(RowGapPx);
    m_rows->setColumnStretch(1, 1);
    m_column->addLayout(m_rows);
    m_column->addStretch();
    m_scroll->setWidget(content); // deletes the one before
    const QList<QPushButton *> buttons = findChildren<QPushButton *>(Qt::FindDirectChildrenOnly);
    qDeleteAll(buttons);
}

void DetailsPopover::setHeading(const QString &title, const QString &color, bool struckOut)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(RowGapPx);
    auto *stripe = new QFrame;
    stripe->setFixedWidth(StripePx);
    stripe->setStyleSheet(QStringLiteral("background: %1; border-radius: 2px;").arg(Theme::eventColor(color).name()));
    m_title = new QLabel(PlainText::breakLongWords(title));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setWordWrap(true);
    QFont font = Theme::headingFont(m_title->font());
    font.setStrikeOut(struckOut);
    m_title->setFont(font);
    auto *close = new QToolButton;
    close->setAutoRaise(true);
    close->setText(QStringLiteral("×"));
    close->setToolTip(tr("Close"));
    close->setAccessibleName(tr("Close"));
    connect(close, &QToolButton::clicked, this, &DetailsPopover::dismiss);
    row->addWidget(stripe);
    row->addWidget(m_title, 1);
    row->addWidget(close, 0, Qt::AlignTop);
    m_column->insertLayout(0, row);
    setAccessibleName(title);
}

int DetailsPopover::addRow(char16_t glyph, QWidget *content, const QString &name)
{
    const int row = m_rows->rowCount();
    auto *icon = new QLabel;
    icon->setPixmap(Theme::iconFromGlyph(glyph, GlyphPx, Theme::textMuted()).pixmap(GlyphPx, GlyphPx));
    icon->setToolTip(name);
    icon->setAccessibleName(name);
    m_rows->addWidget(icon, row, 0, Qt::AlignTop | Qt::AlignHCenter);
    m_rows->addWidget(content, row, 1);
    return row;
}

QLabel *DetailsPopover::addLine(char16_t glyph, const QString &name, const QString &text)
{
    auto *label = new QLabel(PlainText::breakLongWords(text));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setAccessibleName(tr("%1: %2", "kind of detail, its text").arg(name, text));
    addRow(glyph, label, name);
    return label;
}

void DetailsPopover::addLink(char16_t glyph, const QString &name, const QString &text, const QString &url)
{
    QPushButton *button = addLinkButton(glyph, name, text);
    button->setToolTip(Theme::plainToolTip(url));
    connect(button, &QPushButton::clicked, this, [url] { SafeTextBrowser::openOutside(QUrl(url)); });
}

QPushButton *DetailsPopover::addLinkButton(char16_t glyph, const QString &name, const QString &text)
{
    auto *button = new QPushButton;
    button->setFlat(true);
    button->setCursor(Qt::PointingHandCursor);
    button->setAutoDefault(false);
    button->setStyleSheet(QStringLiteral("QPushButton { color: %1; text-align: left; padding: 0; border: 0; }"
                                         "QPushButton:focus { text-decoration: underline; }")
                              .arg(Theme::link().name()));
    const int available = WidthPx * Theme::fontScalePercent() / 100 - 3 * MarginPx - GlyphPx;
    button->setText(Theme::plainLabel(button->fontMetrics().elidedText(text, Qt::ElideRight, available)));
    button->setAccessibleName(tr("%1: %2", "kind of detail, its text").arg(name, text));
    addRow(glyph, button, name);
    return button;
}

void DetailsPopover::addRichText(char16_t glyph, const QString &name, const QString &html)
{
    auto *browser = new SafeTextBrowser(html);
    browser->setAccessibleName(name);
    addRow(glyph, browser, name);
    const int margins = 3 * MarginPx + GlyphPx;
    browser->fitTo(WidthPx * Theme::fontScalePercent() / 100 - margins);
}

QPushButton *DetailsPopover::addButton(const QString &text)
{
    auto *button = new QPushButton(text, this);
    button->setAutoDefault(false);
    m_buttons->addWidget(button);
    return button;
}

DetailsPopover *DetailsPopover::current(QWidget *widget)
{
    return widget->window()->findChild<DetailsPopover *>(ObjectName, Qt::FindDirectChildrenOnly);
}

QRect DetailsPopover::bounds() const
{
    return parentWidget()->rect();
}

void DetailsPopover::showNear(const QRect &globalRect)
{
    const QList<DetailsPopover *> cards =
        parentWidget()->findChildren<DetailsPopover *>(ObjectName, Qt::FindDirectChildrenOnly);
    for (DetailsPopover *card : cards) {
        if (card != this)
            card->dismiss();
    }
    QWidget *window = parentWidget();
    m_focusBefore = window->focusWidget();
    m_anchor = globalRect.isEmpty() ? QRect() : QRect(window->mapFromGlobal(globalRect.topLeft()), globalRect.size());
    fitToContent();
    show();
    raise();
    qApp->installEventFilter(this);
    setFocus(Qt::PopupFocusReason);
}

void DetailsPopover::fitToContent()
{
    const int width = WidthPx * std::max(100, Theme::fontScalePercent()) / 100;
    QLayout *content = m_scroll->widget()->layout();
    const int inner = width - 2 * MarginPx - 2 * frameWidth();
    const int contentHeight =
        content->hasHeightForWidth() ? content->heightForWidth(inner) : content->sizeHint().height();
    const int buttons = m_buttons->sizeHint().height() + RowGapPx;
    const int wanted = contentHeight + buttons + 2 * MarginPx + 2 * frameWidth();
    const int height = std::min(wanted, int(bounds().height() * HeightShare));
    setGeometry(popoverRect({ width, height }, m_anchor, bounds()));
}

void DetailsPopover::dismiss()
{
    if (objectName().isEmpty())
        return; // already going
    qApp->removeEventFilter(this);
    setObjectName({}); // current() does not find it any more
    const bool hadFocus = isAncestorOf(QApplication::focusWidget()) || hasFocus();
    hide();
    if (hadFocus && m_focusBefore)
        m_focusBefore->setFocus(Qt::PopupFocusReason);
    deleteLater();
}

bool DetailsPopover::focusNextPrevChild(bool next)
{
    // The focus goes round in the card: what lies below it is not what the user looks at.
    QWidget *from = focusWidget() ? focusWidget() : this;
    QWidget *to = from;
    do {
        to = next ? to->nextInFocusChain() : to->previousInFocusChain();
        const bool takesTab = (to->focusPolicy() & Qt::TabFocus) && to->isVisibleTo(this) && to->isEnabled();
        if (to != this && isAncestorOf(to) && takesTab) {
            to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    } while (to != from);
    return true;
}

void DetailsPopover::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        return dismiss();
    QFrame::keyPressEvent(event);
}

bool DetailsPopover::onMousePress(QWidget *pressed, const QEvent &event)
{
    if (pressed != this && !isAncestorOf(pressed)) {
        if (pressed->window() == window())
            dismiss(); // and the press goes on to where it was meant for
        return false;
    }
    if (std::exchange(m_wasPressed, true) || event.type() != QEvent::MouseButtonDblClick)
        return false;
    emit openingClickDoubled();
    return true;
}

bool DetailsPopover::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        if (auto *widget = qobject_cast<QWidget *>(watched); widget && onMousePress(widget, *event))
            return true;
    } else if (event->type() == QEvent::Resize && watched == parentWidget()) {
        fitToContent();
    } else if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape
               && qobject_cast<QWidget *>(watched) && static_cast<QWidget *>(watched)->window() == window()) {
        dismiss(); // also while the focus is elsewhere in the window
        return true;
    }
    return QFrame::eventFilter(watched, event);
}
