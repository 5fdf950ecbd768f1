#pragma once

#include "CcAbstractMatrixOptions.hpp"

namespace VoCc {

// A grid of push buttons.
class VOCC_EXPORT MatrixPushButtons : public AbstractMatrixOptions
{
    Q_OBJECT

public:
    explicit MatrixPushButtons(QWidget *parent = nullptr);

protected:
    QAbstractButton *createButton() override;
};

} // namespace VoCc
