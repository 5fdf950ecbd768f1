#pragma once

#include "CcTemplateField.hpp"

#include <QColor>

namespace VoCc {

class ColorButton;

// A colour mapping: the source colour, an arrow, and the colour it becomes.
class VOCC_EXPORT ColorTransfer : public TemplateField
{
    Q_OBJECT
    Q_PROPERTY(QColor fromColor READ fromColor WRITE setFromColor)
    Q_PROPERTY(QColor toColor READ toColor WRITE setToColor)

public:
    explicit ColorTransfer(QWidget *parent = nullptr);

    QColor fromColor() const;
    void setFromColor(const QColor &color);
    QColor toColor() const;
    void setToColor(const QColor &color);

signals:
    void colorsChanged();

private:
    ColorButton *m_from = nullptr;
    ColorButton *m_to = nullptr;
};

} // namespace VoCc
