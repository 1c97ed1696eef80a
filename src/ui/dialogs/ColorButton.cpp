#include "ui/dialogs/ColorButton.h"

#include "models/Constants.h"
#include "ui/dialogs/Prompt.h"
#include "ui/theme/Theme.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QToolButton>

#include <algorithm>
#include <array>

namespace {

constexpr int Columns = 6;
constexpr int TextGap = 4;

/// A disc, with \p gap transparent pixels to its right.
QIcon swatchIcon(const QString &color, int size, qreal ratio, int gap = 0)
{
    QPixmap pixmap(QSize(size + gap, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(color));
    painter.drawEllipse(QRectF(1, 1, size - 2, size - 2));
    return pixmap;
}

bool isSame(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// The popup: a grid that the arrow keys walk.
class PaletteGrid : public QFrame {
public:
    explicit PaletteGrid(QWidget *parent)
        : QFrame(parent, Qt::Popup)
        , m_grid(new QGridLayout(this))
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setFrameShape(QFrame::StyledPanel);
        m_grid->setContentsMargins(8, 8, 8, 8);
        m_grid->setSpacing(4);
    }

    QToolButton *addSwatch(const ColorButton::Swatch &swatch, bool current)
    {
        const int size = qMax(20, fontMetrics().height());
        auto *button = new QToolButton(this);
        button->setAutoRaise(true);
        button->setStyleSheet(QStringLiteral("QToolButton { padding: 4px; }"));
        button->setIconSize(QSize(size, size));
        button->setIcon(swatchIcon(swatch.color, size, devicePixelRatioF()));
        button->setToolTip(swatch.name);
        button->setAccessibleName(swatch.name);
        button->setCheckable(true);
        button->setChecked(current);
        button->setFocusPolicy(Qt::StrongFocus);
        button->installEventFilter(this);
        const int index = int(m_buttons.size());
        m_buttons.append(button);
        m_grid->addWidget(button, index / Columns, index % Columns);
        if (current)
            button->setFocus();
        return button;
    }

    QToolButton *addCustom(const QString &text)
    {
        auto *button = new QToolButton(this);
        button->setText(text);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->installEventFilter(this);
        m_grid->addWidget(button, m_grid->rowCount(), 0, 1, Columns);
        m_buttons.append(button);
        return button;
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return QFrame::eventFilter(watched, event);
        const int key = static_cast<QKeyEvent *>(event)->key();
        auto *button = static_cast<QToolButton *>(watched);
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            button->click();
            return true;
        }
        const int step = key == Qt::Key_Left ? -1
            : key == Qt::Key_Right           ? 1
            : key == Qt::Key_Up              ? -Columns
            : key == Qt::Key_Down            ? Columns
                                             : 0;
        if (step == 0)
            return QFrame::eventFilter(watched, event);
        const auto next = std::clamp<qsizetype>(m_buttons.indexOf(button) + step, 0, m_buttons.size() - 1);
        m_buttons.at(next)->setFocus(Qt::OtherFocusReason);
        return true;
    }

private:
    QGridLayout *m_grid;
    QList<QToolButton *> m_buttons;
};

}

ColorButton::ColorButton(QWidget *parent)
    : QPushButton(parent)
    , m_color(DefaultColor)
{
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QPushButton::clicked, this, &ColorButton::showPalette);
    refresh();
}

void ColorButton::setColor(const QString &color)
{
    const QColor parsed(color);
    m_color = parsed.isValid() ? parsed.name().toUpper() : QString(DefaultColor);
    refresh();
}

const QList<ColorButton::Swatch> &ColorButton::palette()
{
    static const QList<Swatch> swatches{
        { QStringLiteral("#4285F4"), tr("Blue") },   { QStringLiteral("#1BA1D6"), tr("Sky") },
        { QStringLiteral("#0F9D8F"), tr("Teal") },   { QStringLiteral("#2E9E4F"), tr("Green") },
        { QStringLiteral("#8AA617"), tr("Lime") },   { QStringLiteral("#E0A100"), tr("Amber") },
        { QStringLiteral("#E8710A"), tr("Orange") }, { QStringLiteral("#D93A3A"), tr("Red") },
        { QStringLiteral("#D6498F"), tr("Pink") },   { QStringLiteral("#9254C8"), tr("Purple") },
        { QStringLiteral("#5C6BC0"), tr("Indigo") }, { QStringLiteral("#6B7280"), tr("Graphite") },
    };
    return swatches;
}

QString ColorButton::unusedColor(const QStringList &used)
{
    for (const Swatch &swatch : palette()) {
        if (!used.contains(swatch.color, Qt::CaseInsensitive))
            return swatch.color;
    }
    return DefaultColor;
}

void ColorButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        refresh();
    QPushButton::changeEvent(event);
}

void ColorButton::showPalette()
{
    auto *grid = new PaletteGrid(this);
    for (const Swatch &swatch : palette()) {
        QToolButton *button = grid->addSwatch(swatch, isSame(swatch.color, m_color));
        connect(button, &QToolButton::clicked, this, [this, grid, color = swatch.color] {
            grid->close();
            pick(color);
        });
    }
    connect(grid->addCustom(tr("Custom…")), &QToolButton::clicked, this, [this, grid] {
        grid->close();
        chooseCustom();
    });
    grid->adjustSize();
    grid->move(mapToGlobal(QPoint(0, height() + 2)));
    grid->show();
}

void ColorButton::chooseCustom()
{
    Prompt::chooseColor(this, m_dialogTitle, QColor(m_color), this,
                        [this](const QColor &color) { pick(color.name().toUpper()); });
}

void ColorButton::pick(const QString &color)
{
    if (isSame(color, m_color))
        return;
    setColor(color);
    emit colorChanged(m_color);
}

void ColorButton::refresh()
{
    const auto &swatches = palette();
    const auto known = std::find_if(swatches.begin(), swatches.end(),
                                    [this](const Swatch &swatch) { return isSame(swatch.color, m_color); });
    const QString name = known == swatches.end() ? m_color : known->name;
    const int size = qMax(14, fontMetrics().ascent());
    setIconSize(QSize(size + TextGap, size));
    setIcon(swatchIcon(m_color, size, devicePixelRatioF(), TextGap));
    setText(name);
    setAccessibleName(tr("Color: %1").arg(name));
}
