#pragma once

#include "CcGlobal.hpp"

#include <QWidget>

namespace VoCc {

// The top container of an application form. Its mode tells the application how to show
// it; the function name ties it to the command that opens it.
class VOCC_EXPORT Form : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(Mode mode READ mode WRITE setMode)
    Q_PROPERTY(QString functionName READ functionName WRITE setFunctionName)

public:
    enum Mode { Embedded, Dockable, Floating, Modal };
    Q_ENUM(Mode)

    explicit Form(QWidget *parent = nullptr);

    Mode mode() const;
    void setMode(Mode mode);
    QString functionName() const;
    void setFunctionName(const QString &name);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Mode m_mode = Dockable;
    QString m_functionName;
};

} // namespace VoCc
