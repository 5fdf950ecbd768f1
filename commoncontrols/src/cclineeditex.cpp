#include "nui/CommonControls/CcLineEditEx.hpp"

#include <QAction>
#include <QRegularExpressionValidator>
#include <QStyle>

namespace VoCc {

LineEditEx::LineEditEx(QWidget *parent) : QLineEdit(parent)
{
    // A clear button of its own rather than QLineEdit's: that one fades in and out with an
    // animation that outlives a line edit deleted while it runs.
    // It starts hidden, as the line edit starts empty: hiding it once it is in place would
    // lay out the line edit's side buttons again for nothing.
    m_clearAction =
            new QAction(style()->standardIcon(QStyle::SP_LineEditClearButton), QString(), this);
    m_clearAction->setVisible(false);
    m_clearAction->setToolTip(tr("Clear"));
    addAction(m_clearAction, QLineEdit::TrailingPosition);
    connect(m_clearAction, &QAction::triggered, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, this, &LineEditEx::updateClearAction);
    updateClearAction();
}

void LineEditEx::updateClearAction()
{
    m_clearAction->setVisible(!text().isEmpty() && !isReadOnly());
}

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
