#pragma once

#include <QFrame>
#include <QString>

/// One line of plain text that gives way when there is little room: it elides, and then shows the whole
/// text as its tool tip.
class ElidedLabel : public QFrame {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString &text);
    void setMuted(bool muted); ///< in the colour of secondary text

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateToolTip();

    QString m_text;
    bool m_muted = false;
};
