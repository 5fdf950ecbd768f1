#pragma once

#include <QWidget>

class QtProperty;

QT_BEGIN_NAMESPACE
class QHBoxLayout;
class QLabel;
class QToolButton;
QT_END_NAMESPACE

namespace qdesigner_internal {

// An editor with a reset button beside it. Without an editor of its own it shows the
// property's value as text and icon.
class ResetWidget : public QWidget
{
    Q_OBJECT
public:
    explicit ResetWidget(QtProperty *property, QWidget *parent = nullptr);

    QtProperty *property() const { return m_property; }
    void setWidget(QWidget *widget);
    QWidget *widget() const { return m_widget; }
    QToolButton *resetButton() const { return m_button; }

    void setResetEnabled(bool enabled);
    void setValueText(const QString &text);
    void setValueIcon(const QIcon &icon);
    void setSpacing(int spacing);

signals:
    void resetProperty(QtProperty *property);

private slots:
    void slotClicked();

private:
    QtProperty *m_property;
    QHBoxLayout *m_layout;
    QLabel *m_iconLabel;
    QLabel *m_textLabel;
    QWidget *m_widget = nullptr;
    QToolButton *m_button;
};

} // namespace qdesigner_internal
