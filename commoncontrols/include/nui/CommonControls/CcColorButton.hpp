#pragma once

#include "CcGlobal.hpp"

#include <QColor>
#include <QToolButton>

namespace VoCc {

// A button showing a colour swatch; clicking it opens a colour dialog.
class VOCC_EXPORT ColorButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit ColorButton(QWidget *parent = nullptr);

    QColor color() const;
    void setColor(const QColor &color);

    QSize sizeHint() const override;

signals:
    void colorChanged(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void chooseColor();

    QColor m_color = Qt::black;
};

} // namespace VoCc
