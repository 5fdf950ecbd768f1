#pragma once

#include "CcGlobal.hpp"

#include <QComboBox>

namespace VoCc {

// A drop-down list of line widths (in pixels), each drawn as a sample line.
class VOCC_EXPORT LineWidth : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(int lineWidth READ lineWidth WRITE setLineWidth NOTIFY lineWidthChanged)
    Q_PROPERTY(int maximumLineWidth READ maximumLineWidth WRITE setMaximumLineWidth)

public:
    explicit LineWidth(QWidget *parent = nullptr);

    int lineWidth() const;
    void setLineWidth(int width);
    int maximumLineWidth() const;
    void setMaximumLineWidth(int width);

signals:
    void lineWidthChanged(int width);

private:
    void fill();

    int m_maximumLineWidth = 8;
};

} // namespace VoCc
