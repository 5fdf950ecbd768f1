#pragma once

#include "CcGlobal.hpp"

#include <QComboBox>

namespace VoCc {

// A drop-down list of pen styles, each drawn as a sample line.
class VOCC_EXPORT LineType : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(Qt::PenStyle lineStyle READ lineStyle WRITE setLineStyle NOTIFY lineStyleChanged)

public:
    explicit LineType(QWidget *parent = nullptr);

    Qt::PenStyle lineStyle() const;
    void setLineStyle(Qt::PenStyle style);

signals:
    void lineStyleChanged(Qt::PenStyle style);
};

} // namespace VoCc
