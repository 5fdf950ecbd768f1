#include "nui/CommonControls/CcRealNumberSlider.hpp"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QSlider>
#include <cmath>

namespace VoCc {

namespace {
// Slider positions across the range; the spin box carries the exact value.
const int SliderSteps = 1000;
} // namespace

RealNumberSlider::RealNumberSlider(QWidget *parent)
    : QWidget(parent),
      m_slider(new QSlider(Qt::Horizontal, this)),
      m_spinBox(new QDoubleSpinBox(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_slider, 1);
    layout->addWidget(m_spinBox);
    m_slider->setRange(0, SliderSteps);
    m_spinBox->setRange(0.0, 100.0);
    m_spinBox->setDecimals(2);
    m_spinBox->setSingleStep(0.01);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    connect(m_slider, &QSlider::valueChanged, this, [this](int position) {
        if (m_syncing)
            return;
        const double span = maximum() - minimum();
        m_spinBox->setValue(minimum() + span * position / SliderSteps);
    });
    connect(m_spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this](double value) {
                syncSlider();
                emit valueChanged(value);
            });
}

double RealNumberSlider::value() const { return m_spinBox->value(); }

void RealNumberSlider::setValue(double value) { m_spinBox->setValue(value); }

double RealNumberSlider::minimum() const { return m_spinBox->minimum(); }

void RealNumberSlider::setMinimum(double minimum)
{
    m_spinBox->setMinimum(minimum);
    syncSlider();
}

double RealNumberSlider::maximum() const { return m_spinBox->maximum(); }

void RealNumberSlider::setMaximum(double maximum)
{
    m_spinBox->setMaximum(maximum);
    syncSlider();
}

int RealNumberSlider::decimals() const { return m_spinBox->decimals(); }

void RealNumberSlider::setDecimals(int decimals)
{
    m_spinBox->setDecimals(decimals);
    m_spinBox->setSingleStep(std::pow(10.0, -decimals));
}

QSlider *RealNumberSlider::slider() const { return m_slider; }

QDoubleSpinBox *RealNumberSlider::spinBox() const { return m_spinBox; }

void RealNumberSlider::syncSlider()
{
    const double span = maximum() - minimum();
    const int position = span > 0 ? qRound((value() - minimum()) / span * SliderSteps) : 0;
    m_syncing = true;
    m_slider->setValue(position);
    m_syncing = false;
}

} // namespace VoCc
