#pragma once

#include <QIcon>
#include <QWidget>

class QLabel;
class QToolButton;

namespace CcPropertyBrowserDetail {

// An in-place editor for values picked in a dialog (colours, fonts): the value's icon and
// text, and a "..." button that asks for a new value.
class DialogValueEditor : public QWidget
{
    Q_OBJECT
public:
    explicit DialogValueEditor(QWidget *parent = nullptr);

    void setValue(const QIcon &icon, const QString &text);
    QToolButton *button() const { return m_button; }

Q_SIGNALS:
    void buttonClicked();

private:
    QLabel *m_iconLabel;
    QLabel *m_textLabel;
    QToolButton *m_button;
};

} // namespace CcPropertyBrowserDetail
