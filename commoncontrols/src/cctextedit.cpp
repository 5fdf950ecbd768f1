#include "nui/CommonControls/CcTextEdit.hpp"

namespace VoCc {

TextEdit::TextEdit(QWidget *parent) : QTextEdit(parent) { }

bool TextEdit::isPlainTextOnly() const { return !acceptRichText(); }

void TextEdit::setPlainTextOnly(bool plainOnly) { setAcceptRichText(!plainOnly); }

} // namespace VoCc
