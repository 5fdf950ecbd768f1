#pragma once

#include "CcTemplateField.hpp"

class QLineEdit;
class QToolButton;

namespace VoCc {

// A picked window (a view of the application): its name and a button to pick it.
class VOCC_EXPORT Window : public TemplateField
{
    Q_OBJECT
    Q_PROPERTY(QString windowName READ windowName WRITE setWindowName)

public:
    explicit Window(QWidget *parent = nullptr);

    QString windowName() const;
    void setWindowName(const QString &name);

signals:
    void pickRequested();

private:
    QLineEdit *m_nameEdit = nullptr;
    QToolButton *m_pickButton = nullptr;
};

} // namespace VoCc
