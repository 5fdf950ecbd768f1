#pragma once

#include "CcTemplateField.hpp"

class QDoubleSpinBox;

namespace VoCc {

// A point in space: X, Y and Z coordinates.
class VOCC_EXPORT Point : public TemplateField
{
    Q_OBJECT
    Q_PROPERTY(double xCoordinate READ xValue WRITE setXValue)
    Q_PROPERTY(double yCoordinate READ yValue WRITE setYValue)
    Q_PROPERTY(double zCoordinate READ zValue WRITE setZValue)

public:
    explicit Point(QWidget *parent = nullptr);

    double xValue() const;
    void setXValue(double value);
    double yValue() const;
    void setYValue(double value);
    double zValue() const;
    void setZValue(double value);

signals:
    void pointChanged();

private:
    QDoubleSpinBox *m_coordinates[3] = {};
};

} // namespace VoCc
