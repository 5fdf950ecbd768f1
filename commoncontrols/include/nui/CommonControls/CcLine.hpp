#pragma once

#include "CcGlobal.hpp"

#include <QFrame>

namespace VoCc {

// A sunken separator line, horizontal by default.
class VOCC_EXPORT Line : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)

public:
    explicit Line(QWidget *parent = nullptr);

    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);
};

} // namespace VoCc
