#pragma once

#include "../CcGlobal.hpp"

#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace VoCc {

// Base of the template widgets: one labelled input row, a caption on the left and the
// editor on the right. An empty caption hides the label.
class VOCC_EXPORT TemplateField : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption)

public:
    explicit TemplateField(QWidget *parent = nullptr);
    ~TemplateField() override;

    QString caption() const;
    void setCaption(const QString &caption);

    QLabel *captionLabel() const;

protected:
    // Appends an editor widget to the row; stretch as for QBoxLayout::addWidget.
    void addEditor(QWidget *editor, int stretch = 1);
    QHBoxLayout *rowLayout() const;

private:
    QHBoxLayout *m_layout = nullptr;
    QLabel *m_captionLabel = nullptr;
};

} // namespace VoCc
