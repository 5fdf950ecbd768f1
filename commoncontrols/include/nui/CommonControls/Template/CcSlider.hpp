#pragma once

#include "CcTemplateField.hpp"

class QLabel;
class QSlider;

namespace VoCc {

// A labelled slider with its value shown beside it.
class VOCC_EXPORT Slider : public TemplateField
{
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)

public:
    explicit Slider(QWidget *parent = nullptr);

    int value() const;
    void setValue(int value);
    int minimum() const;
    void setMinimum(int minimum);
    int maximum() const;
    void setMaximum(int maximum);
    QSlider *slider() const;

signals:
    void valueChanged(int value);

private:
    QSlider *m_slider = nullptr;
    QLabel *m_valueLabel = nullptr;
};

} // namespace VoCc
