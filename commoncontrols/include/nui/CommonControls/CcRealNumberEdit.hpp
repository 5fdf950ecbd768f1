#pragma once

#include "CcGlobal.hpp"

#include <QLineEdit>

class QDoubleValidator;

namespace VoCc {

// A line edit for a real number within a range, with a fixed number of decimals.
class VOCC_EXPORT RealNumberEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)

public:
    explicit RealNumberEdit(QWidget *parent = nullptr);

    double value() const;
    void setValue(double value);
    double minimum() const;
    void setMinimum(double minimum);
    double maximum() const;
    void setMaximum(double maximum);
    int decimals() const;
    void setDecimals(int decimals);

signals:
    void valueChanged(double value);

private:
    void showValue();
    void takeEditedText();

    QDoubleValidator *m_validator = nullptr;
    double m_value = 0.0;
};

} // namespace VoCc
