#pragma once

#include "CcTemplateField.hpp"

class QDoubleSpinBox;

namespace VoCc {

// An angle in degrees, with a dial showing its direction.
class VOCC_EXPORT Angle : public TemplateField
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)

public:
    explicit Angle(QWidget *parent = nullptr);

    double value() const;
    void setValue(double degrees);
    QDoubleSpinBox *spinBox() const;

signals:
    void valueChanged(double degrees);

private:
    QDoubleSpinBox *m_spinBox = nullptr;
    QWidget *m_dial = nullptr;
};

} // namespace VoCc
