#pragma once

#include "CcGlobal.hpp"

#include <QWidget>

namespace VoCc {

// A placeholder for another form that the application puts in at run time; it shows the
// name of that form inside a dashed frame.
class VOCC_EXPORT FormProxy : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString formName READ formName WRITE setFormName)

public:
    explicit FormProxy(QWidget *parent = nullptr);

    QString formName() const;
    void setFormName(const QString &name);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_formName;
};

} // namespace VoCc
