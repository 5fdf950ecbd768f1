#pragma once

#include "CcGlobal.hpp"

#include <QTextEdit>

namespace VoCc {

// A text editor for plain or rich text with a placeholder shown while it is empty.
class VOCC_EXPORT TextEdit : public QTextEdit
{
    Q_OBJECT
    Q_PROPERTY(bool plainTextOnly READ isPlainTextOnly WRITE setPlainTextOnly)

public:
    explicit TextEdit(QWidget *parent = nullptr);

    bool isPlainTextOnly() const;
    void setPlainTextOnly(bool plainOnly);
};

} // namespace VoCc
