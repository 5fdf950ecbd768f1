#include "nui/CommonControls/CcLineEditEx.hpp"

#include <QRegularExpressionValidator>

namespace VoCc {

LineEditEx::LineEditEx(QWidget *parent) : QLineEdit(parent) { setClearButtonEnabled(true); }

QString LineEditEx::pattern() const { return m_pattern; }

void LineEditEx::setPattern(const QString &pattern)
{
    const QRegularExpression expression(pattern);
    if (!pattern.isEmpty() && !expression.isValid())
        return;
    m_pattern = pattern;
    // Only a validator this widget made for an earlier pattern is replaced and deleted.
    auto *previous = qobject_cast<const QRegularExpressionValidator *>(validator());
    const bool ownPrevious = previous && previous->parent() == this;
    setValidator(pattern.isEmpty() ? nullptr : new QRegularExpressionValidator(expression, this));
    if (ownPrevious)
        delete previous;
}

} // namespace VoCc
