#pragma once

#include "CcGlobal.hpp"

#include <QColor>
#include <QList>
#include <QWidget>

namespace VoCc {

// A palette of colour swatches; clicking one selects its colour.
class VOCC_EXPORT ColorPanel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(int columns READ columns WRITE setColumns)

public:
    explicit ColorPanel(QWidget *parent = nullptr);
    ColorPanel(QWidget *parent, Qt::WindowFlags flags);

    QColor color() const;
    void setColor(const QColor &color);
    int columns() const;
    void setColumns(int columns);

    QList<QColor> colors() const;
    void setColors(const QList<QColor> &colors);

    QSize sizeHint() const override;

signals:
    void colorChanged(const QColor &color);
    void colorSelected(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    QRect swatchRect(int index) const;

    QList<QColor> m_colors;
    QColor m_color = Qt::black;
    int m_columns = 8;
};

} // namespace VoCc
