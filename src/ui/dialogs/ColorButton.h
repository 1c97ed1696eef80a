#pragma once

#include <QColor>
#include <QList>
#include <QPushButton>
#include <QString>

/// A colour with its name; opens a palette of calendar colours and "Custom…".
class ColorButton : public QPushButton {
    Q_OBJECT

public:
    struct Swatch {
        QString color; ///< "#RRGGBB"
        QString name;
    };

    explicit ColorButton(QWidget *parent = nullptr);

    [[nodiscard]] QString color() const { return m_color; }
    void setColor(const QString &color); ///< unreadable text means the standard colour; no signal

    void setDialogTitle(const QString &title) { m_dialogTitle = title; } ///< of the dialog behind "Custom…"

    static const QList<Swatch> &palette();
    /// The first colour of the palette that is in none of \p used; the standard colour if all are.
    static QString unusedColor(const QStringList &used);

signals:
    void colorChanged(const QString &color); ///< by the user

protected:
    void changeEvent(QEvent *event) override;

private:
    void showPalette();
    void chooseCustom();
    void pick(const QString &color);
    void refresh();

    QString m_color;
    QString m_dialogTitle;
};
