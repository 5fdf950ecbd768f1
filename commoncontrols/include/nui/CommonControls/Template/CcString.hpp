#pragma once

#include "CcTemplateField.hpp"

class QLineEdit;

namespace VoCc {

// A labelled line of text.
class VOCC_EXPORT String : public TemplateField
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

public:
    explicit String(QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);
    QLineEdit *lineEdit() const;

signals:
    void textChanged(const QString &text);

private:
    QLineEdit *m_lineEdit = nullptr;
};

} // namespace VoCc
