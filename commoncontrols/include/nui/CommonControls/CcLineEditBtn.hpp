#pragma once

#include "CcGlobal.hpp"

#include <QWidget>

class QLineEdit;
class QToolButton;

namespace VoCc {

// A line edit with a button beside it ("..." by default), for texts that are usually
// picked from somewhere else.
class VOCC_EXPORT LineEditBtn : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QString buttonText READ buttonText WRITE setButtonText)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)

public:
    explicit LineEditBtn(QWidget *parent = nullptr);

    QLineEdit *lineEdit() const;
    QToolButton *button() const;

    QString text() const;
    void setText(const QString &text);
    QString buttonText() const;
    void setButtonText(const QString &text);
    bool isReadOnly() const;
    void setReadOnly(bool readOnly);

signals:
    void textChanged(const QString &text);
    void buttonClicked();

private:
    QLineEdit *m_lineEdit = nullptr;
    QToolButton *m_button = nullptr;
};

} // namespace VoCc
