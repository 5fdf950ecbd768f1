#pragma once

#include "CcTemplateField.hpp"

class QSpinBox;

namespace VoCc {

// A labelled whole number within a range.
class VOCC_EXPORT Number : public TemplateField
{
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)

public:
    explicit Number(QWidget *parent = nullptr);

    int value() const;
    void setValue(int value);
    int minimum() const;
    void setMinimum(int minimum);
    int maximum() const;
    void setMaximum(int maximum);
    QSpinBox *spinBox() const;

signals:
    void valueChanged(int value);

private:
    QSpinBox *m_spinBox = nullptr;
};

} // namespace VoCc
