#include "ui/dialogs/InlineMessage.h"

#include "ui/theme/Theme.h"

#include <QAccessible>
#include <QPainter>

InlineMessage::InlineMessage(Kind kind, QWidget *parent)
    : QLabel(parent)
    , m_kind(kind)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setContentsMargins(14, 8, 12, 8);
    hide();
}

void InlineMessage::showText(const QString &text)
{
    if (text == this->text() && isHidden() == text.isEmpty())
        return;
    setText(text);
    setVisible(!text.isEmpty());
    if (!text.isEmpty()) {
        setAccessibleName(text);
        QAccessibleEvent event(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void InlineMessage::showText(Kind kind, const QString &text)
{
    m_kind = kind;
    update();
    showText(text);
}

void InlineMessage::paintEvent(QPaintEvent *event)
{
    const QColor color = m_kind == Kind::Problem ? Theme::danger()
        : m_kind == Kind::Warning                ? Theme::warning()
                                                 : Theme::accent();
    QColor tint = color;
    tint.setAlpha(28);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tint);
    painter.drawRoundedRect(rect(), 4, 4);
    painter.setBrush(color);
    painter.drawRoundedRect(QRect(0, 0, 4, height()), 2, 2);
    painter.end();
    QLabel::paintEvent(event);
}
