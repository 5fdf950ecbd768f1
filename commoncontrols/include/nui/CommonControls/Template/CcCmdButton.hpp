#pragma once

#include "../CcGlobal.hpp"

#include <QPushButton>

namespace VoCc {

// A push button that runs an application command, named by its "command" property.
class VOCC_EXPORT CmdButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QString command READ command WRITE setCommand)

public:
    explicit CmdButton(QWidget *parent = nullptr);

    QString command() const;
    void setCommand(const QString &command);

signals:
    // Emitted on a click when a command is set.
    void commandTriggered(const QString &command);

private:
    QString m_command;
};

} // namespace VoCc
