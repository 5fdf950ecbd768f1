#pragma once

#include "CcTemplateField.hpp"

class QDoubleSpinBox;

namespace VoCc {

// A length with its unit shown after the number.
class VOCC_EXPORT Distance : public TemplateField
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(QString unit READ unit WRITE setUnit)

public:
    explicit Distance(QWidget *parent = nullptr);

    double value() const;
    void setValue(double value);
    QString unit() const;
    void setUnit(const QString &unit);
    QDoubleSpinBox *spinBox() const;

signals:
    void valueChanged(double value);

private:
    QDoubleSpinBox *m_spinBox = nullptr;
    QString m_unit;
};

} // namespace VoCc
