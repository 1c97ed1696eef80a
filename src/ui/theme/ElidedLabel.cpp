#include "ui/theme/ElidedLabel.h"

#include "ui/theme/Theme.h"

#include <QPainter>

ElidedLabel::ElidedLabel(QWidget *parent)
    : QFrame(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ElidedLabel::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    setAccessibleName(text);
    updateToolTip();
    updateGeometry();
    update();
}

void ElidedLabel::setMuted(bool muted)
{
    m_muted = muted;
    update();
}

QSize ElidedLabel::sizeHint() const
{
    const QFontMetrics metrics(font());
    return { metrics.horizontalAdvance(m_text) + 2, metrics.height() + 4 };
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QFontMetrics metrics(font());
    return { metrics.horizontalAdvance(m_text.left(3) + u'…'), metrics.height() + 4 };
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(m_muted ? Theme::textMuted() : Theme::textPrimary());
    painter.setFont(font());
    const QString shown = painter.fontMetrics().elidedText(m_text, Qt::ElideRight, width());
    painter.drawText(rect(), int(Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine), shown);
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    updateToolTip();
}

void ElidedLabel::updateToolTip()
{
    const bool whole = QFontMetrics(font()).horizontalAdvance(m_text) <= width();
    setToolTip(whole ? QString() : Theme::plainToolTip(m_text));
}
