#include "nui/CommonControls/CcMatrixButtons.hpp"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

namespace VoCc {

MatrixPushButtons::MatrixPushButtons(QWidget *parent) : AbstractMatrixOptions(parent)
{
    updateGeomtries();
}

QAbstractButton *MatrixPushButtons::createButton()
{
    auto *cell = new QPushButton;
    cell->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return cell;
}

MatrixRadioButtons::MatrixRadioButtons(QWidget *parent) : AbstractMatrixOptions(parent)
{
    updateGeomtries();
}

QAbstractButton *MatrixRadioButtons::createButton() { return new QRadioButton; }

bool MatrixRadioButtons::isExclusive() const { return true; }

MatrixCheckBoxes::MatrixCheckBoxes(QWidget *parent) : AbstractMatrixOptions(parent)
{
    updateGeomtries();
}

QAbstractButton *MatrixCheckBoxes::createButton() { return new QCheckBox; }

} // namespace VoCc
