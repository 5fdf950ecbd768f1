#pragma once

#include "CcGlobal.hpp"

#include <QColor>
#include <QComboBox>

namespace VoCc {

// A drop-down list of named colours, each shown with its swatch.
class VOCC_EXPORT ColorPicker : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit ColorPicker(QWidget *parent = nullptr);

    QColor color() const;
    // Selects the colour, adding it to the list when it is not there yet.
    void setColor(const QColor &color);

signals:
    void colorChanged(const QColor &color);

private:
    void addColor(const QColor &color, const QString &name);
};

} // namespace VoCc
