#pragma once

#include "CcTemplateField.hpp"

class QLineEdit;
class QToolButton;

namespace VoCc {

// One picked model entity: its name, read-only, and a button to pick it.
class VOCC_EXPORT Entity : public TemplateField
{
    Q_OBJECT
    Q_PROPERTY(QString entityName READ entityName WRITE setEntityName)

public:
    explicit Entity(QWidget *parent = nullptr);

    QString entityName() const;
    void setEntityName(const QString &name);
    QToolButton *pickButton() const;

signals:
    void pickRequested();

private:
    QLineEdit *m_nameEdit = nullptr;
    QToolButton *m_pickButton = nullptr;
};

} // namespace VoCc
