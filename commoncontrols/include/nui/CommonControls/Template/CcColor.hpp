#pragma once

#include "CcTemplateField.hpp"

#include <QColor>

namespace VoCc {

class ColorButton;

// A labelled colour choice.
class VOCC_EXPORT Color : public TemplateField
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit Color(QWidget *parent = nullptr);

    QColor color() const;
    void setColor(const QColor &color);
    ColorButton *colorButton() const;

signals:
    void colorChanged(const QColor &color);

private:
    ColorButton *m_button = nullptr;
};

} // namespace VoCc
