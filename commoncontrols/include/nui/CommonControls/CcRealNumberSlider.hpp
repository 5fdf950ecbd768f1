#pragma once

#include "CcGlobal.hpp"

#include <QWidget>

class QDoubleSpinBox;
class QSlider;

namespace VoCc {

// A slider for a real number, with a spin box showing the exact value.
class VOCC_EXPORT RealNumberSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)

public:
    explicit RealNumberSlider(QWidget *parent = nullptr);

    double value() const;
    void setValue(double value);
    double minimum() const;
    void setMinimum(double minimum);
    double maximum() const;
    void setMaximum(double maximum);
    int decimals() const;
    void setDecimals(int decimals);

    QSlider *slider() const;
    QDoubleSpinBox *spinBox() const;

signals:
    void valueChanged(double value);

private:
    void syncSlider();

    QSlider *m_slider = nullptr;
    QDoubleSpinBox *m_spinBox = nullptr;
    bool m_syncing = false;
};

} // namespace VoCc
