#pragma once

#include "CcCheckableTextComboBox.hpp"
#include "CcGlobal.hpp"
#include "CcLineEditBtn.hpp"

#include <QLineEdit>

class QAction;

namespace VoCc {

// A line edit with a clear button and an optional pattern (a regular expression) that
// input must match.
class VOCC_EXPORT LineEditEx : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString pattern READ pattern WRITE setPattern)

public:
    explicit LineEditEx(QWidget *parent = nullptr);

    QString pattern() const;
    // An empty pattern accepts any input; an invalid one is ignored.
    void setPattern(const QString &pattern);

private:
    void updateClearAction();

    QString m_pattern;
    QAction *m_clearAction = nullptr;
};

} // namespace VoCc
