#include "nui/CommonControls/CcRealNumberEdit.hpp"

#include <QDoubleValidator>
#include <QLocale>

namespace VoCc {

RealNumberEdit::RealNumberEdit(QWidget *parent)
    : QLineEdit(parent), m_validator(new QDoubleValidator(-1e12, 1e12, 3, this))
{
    m_validator->setNotation(QDoubleValidator::StandardNotation);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // The first text is the value's own; checking it against the validator would only cost.
    showValue();
    setValidator(m_validator);
    connect(this, &QLineEdit::editingFinished, this, &RealNumberEdit::takeEditedText);
}

double RealNumberEdit::value() const { return m_value; }

void RealNumberEdit::setValue(double value)
{
    value = qBound(minimum(), value, maximum());
    const bool changed = !qFuzzyCompare(value + 1.0, m_value + 1.0);
    m_value = value;
    showValue();
    if (changed)
        emit valueChanged(value);
}

double RealNumberEdit::minimum() const { return m_validator->bottom(); }

void RealNumberEdit::setMinimum(double minimum)
{
    m_validator->setBottom(minimum);
    if (m_value < minimum)
        setValue(minimum);
}

double RealNumberEdit::maximum() const { return m_validator->top(); }

void RealNumberEdit::setMaximum(double maximum)
{
    m_validator->setTop(maximum);
    if (m_value > maximum)
        setValue(maximum);
}

int RealNumberEdit::decimals() const { return m_validator->decimals(); }

void RealNumberEdit::setDecimals(int decimals)
{
    m_validator->setDecimals(qBound(0, decimals, 12));
    showValue();
}

void RealNumberEdit::showValue() { setText(locale().toString(m_value, 'f', decimals())); }

void RealNumberEdit::takeEditedText()
{
    bool ok = false;
    const double edited = locale().toDouble(text(), &ok);
    if (ok)
        setValue(edited);
    else
        showValue();
}

} // namespace VoCc
