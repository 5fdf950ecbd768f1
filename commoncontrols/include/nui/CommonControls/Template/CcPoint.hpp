#pragma once

#include "CcTemplateField.hpp"

class QDoubleSpinBox;

namespace VoCc {

// A point in space: X, Y and Z coordinates.
class VOCC_EXPORT Point : public TemplateField
{
    Q_OBJECT
    Q_PROPERTY(double xCoordinate READ xCoordinate WRITE setXCoordinate)
    Q_PROPERTY(double yCoordinate READ yCoordinate WRITE setYCoordinate)
    Q_PROPERTY(double zCoordinate READ zCoordinate WRITE setZCoordinate)

public:
    explicit Point(QWidget *parent = nullptr);

    double xCoordinate() const;
    void setXCoordinate(double value);
    double yCoordinate() const;
    void setYCoordinate(double value);
    double zCoordinate() const;
    void setZCoordinate(double value);

signals:
    void pointChanged();

private:
    QDoubleSpinBox *m_coordinates[3] = {};
};

} // namespace VoCc
